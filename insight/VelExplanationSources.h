#ifndef VELEXPLANATIONSOURCES_H
#define VELEXPLANATIONSOURCES_H

#include "insight/VelExplainedPlace.h"
#include "insight/VelPositionedDocument.h"

#include <QHash>
#include <QString>
#include <QStringList>

#include <memory>
#include <vector>

class VelOrderSource;
class VelProductAbstract;

/// The documents that the library read last, with the elements that its products came from.
class VelExplanationSources
{
    Q_DISABLE_COPY(VelExplanationSources)

public:
    /// Reads the documents of the last loads once more. One that can't be read any more gives no places.
    VelExplanationSources();

    /// Reads a coupon's document, too.
    void addCoupon(const QString& theFile);

    /// The element that the product's prices were read from: of several of one id the last. Null for a product that the
    /// price list no longer holds.
    QDomElement element(const VelProductAbstract& theProduct) const;
    /// All elements of one id in their order: the first one made the product what it is, the others updated it.
    QVector<QDomElement> elements(const VelProductAbstract& theProduct) const { return myElements.value(&theProduct); }
    /// Its price entries, in the order in which bands number them.
    static QVector<QDomElement> entries(const QDomElement& theArticle);
    /// The conditions of a coupon, by the number of its document; null for none.
    QDomElement coupon(int theNumber) const;
    /// Of the ordering details: the record of a shipping group, and that of an order source, the last of several.
    QDomElement shippingGroup(int theId) const;
    QDomElement orderSource(const VelOrderSource& theSource) const;

    /// Adds the places of these attributes, also of missing ones. An element that isn't of these documents has none.
    void cite(QVector<VelExplainedPlace>& thePlaces, const QDomElement& theElement, const QStringList& theNames) const;
    /// Adds those of all attributes that the element has.
    void citeAll(QVector<VelExplainedPlace>& thePlaces, const QDomElement& theElement) const;

private:
    struct Document
    {
        explicit Document(const QString& theFile) : myFile(theFile), myContent(QFileInfo(theFile)) {}
        QString myFile;
        VelPositionedDocument myContent;
    };

    void findArticles(const QDomElement& theSection);
    void findFees(const QDomElement& theRoot);
    const Document* documentOf(const QDomElement& theElement) const;
    QDomElement root(std::size_t theDocument) const;

    std::vector<std::unique_ptr<const Document>> myDocuments; ///< price list, ordering details, coupons
    QHash<const VelProductAbstract*, QVector<QDomElement>> myElements;
};

#endif
