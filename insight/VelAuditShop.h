#ifndef VELAUDITSHOP_H
#define VELAUDITSHOP_H

#include "insight/VelDocumentDescription.h"
#include "insight/VelInsightExport.h"
#include "insight/VelPositionedDocument.h"

#include <QDir>
#include <QVector>

#include <memory>
#include <vector>

/// A document of an account, with the places beside its tree, and what is known of its elements.
struct VELINSIGHT_EXPORT VelAuditDocument
{
    /// Reads the file below the folder.
    VelAuditDocument(const VelDocumentDescription& theDescription, const QDir& theFolder, const QString& theFile);

    /// What is known of the document.
    const VelDocumentDescription& myDescription;
    const QString myFile;                  ///< below the account's folder, with slashes
    const VelPositionedDocument myContent; ///< as the library reads it; it may be unreadable
};

/**
 * What the checks get: the documents of an account, each read once and as the library reads them, by the guarded
 * loader. It knows nothing of the account that the application has open, and changes nothing.
 */
class VELINSIGHT_EXPORT VelAuditShop
{
    Q_DISABLE_COPY(VelAuditShop)

public:
    /// The kinds of documents.
    using Kind = VelDocumentDescription::Kind;

    /// Reads pricelist.xml, orderingdetails.xml and currencies.xml, and where they are there appearance.xml,
    /// icons/payment/filenames.xml and each coupons/*.xml, in the order of their names.
    explicit VelAuditShop(const QDir& theFolder);

    /// The files that such a shop reads, below the folder: those that it can't do without, and those that are there.
    static QStringList files(const QDir& theFolder);

    /// All documents, unreadable ones, too.
    const std::vector<std::unique_ptr<const VelAuditDocument>>& documents() const { return myDocuments; }
    /// The document of a file below the account's folder, null for none.
    const VelAuditDocument* document(const QString& theFile) const;
    /// The first document of a kind, null where it isn't there or can't be read.
    const VelAuditDocument* readable(Kind theKind) const;
    /// The document element of the first document of a kind, null where it isn't there or can't be read.
    QDomElement root(Kind theKind) const;
    /// The coupons that can be read.
    QVector<const VelAuditDocument*> coupons() const;

private:
    void read(const VelDocumentDescription& theDescription, const QDir& theFolder, const QString& theFile);

    std::vector<std::unique_ptr<const VelAuditDocument>> myDocuments;
};

#endif
