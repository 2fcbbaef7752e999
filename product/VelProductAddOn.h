#ifndef VELPRODUCTADDON_H
#define VELPRODUCTADDON_H

#include "product/VelProductAbstract.h"

#include <QList>

#include <vector>

/// Anything sold only together with a main product: a design, frame, wall holder, page package, map or video.
///
/// The linked articles and the product class are read once, with the first element; an update leaves them.
class VELTARM_EXPORT VelProductAddOn : public VelProductAbstract
{
public:
    /// Reads an element `add_on`.
    explicit VelProductAddOn(const QDomElement& theElement);

    /// Add-ons have addresses above all main products, see VelProductStorage.
    static void* operator new(std::size_t theSize);
    static void operator delete(void* theObject, std::size_t theSize);

    /// The article IDs of the main products that it fits, from `linked_articles`, in document order, duplicates kept.
    const QList<int>& articleIDs() const { return myArticleIDs; }

    /// Attribute `product_class`: the add-on's kind as a word; null when missing.
    QString productClass() const { return myProductClassWord; }

    /// Whether the main product is one of articleIDs().
    bool isCompatibleWithArticleId(int theArticleID) const;

    /// Compatible with the article, and of that product class, case-sensitively.
    bool matches(int theArticleID, const QString& theProductClass) const;

    /// Whether the product class is "ANG1".
    bool requirement() const;

    /// Whether the customer may pick the add-on himself: a closed list of product classes.
    bool isOrderableByUser() const;

    /// Whether the product class is "10" or "20".
    bool isFreeTheme() const;

    /// The product class of the map add-on.
    static QString locrMapName();
    /// The product class of the video add-on.
    static QString videoName();

private:
    QList<int> myArticleIDs;
    std::vector<int> mySortedArticleIDs; ///< the same ids, to be searched: an add-on may fit very many articles
    QString myProductClassWord;
};

#endif
