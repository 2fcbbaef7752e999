#include "insight/VelAuditShop.h"

namespace {

using Document = VelDocumentDescription;

const QString STR_ALL_FILES = QStringLiteral("*");

/// Without these there is no shop.
bool isNeeded(const Document& theDescription)
{
    return theDescription.kind() == Document::PRICE_LIST || theDescription.kind() == Document::ORDERING_DETAILS ||
           theDescription.kind() == Document::CURRENCIES;
}

/// The files of a description, whose name may stand for several, and which may not be there.
QStringList filesOf(const Document& theDescription, const QDir& theFolder)
{
    const QFileInfo pattern(theDescription.file());
    if (!pattern.fileName().contains(STR_ALL_FILES))
        return isNeeded(theDescription) || QFileInfo::exists(theFolder.filePath(theDescription.file()))
                   ? QStringList{theDescription.file()}
                   : QStringList();
    QStringList files =
        QDir(theFolder.filePath(pattern.path())).entryList({pattern.fileName()}, QDir::Files, QDir::Name);
    for (QString& file : files)
        file.prepend(pattern.path() + QLatin1Char('/'));
    return files;
}

/// Documents are regular files: a device might never end.
QFileInfo regular(const QFileInfo& theFile)
{
    return theFile.exists() && !theFile.isFile() ? QFileInfo() : theFile;
}

} // namespace

VelAuditDocument::VelAuditDocument(const VelDocumentDescription& theDescription, const QDir& theFolder,
                                   const QString& theFile)
    : myDescription(theDescription), myFile(theFile), myContent(regular(QFileInfo(theFolder.filePath(theFile))))
{
}

VelAuditShop::VelAuditShop(const QDir& theFolder)
{
    for (const Document* description : Document::all())
        for (const QString& file : filesOf(*description, theFolder))
            read(*description, theFolder, file);
}

QStringList VelAuditShop::files(const QDir& theFolder)
{
    QStringList files;
    for (const Document* description : Document::all())
        files += filesOf(*description, theFolder);
    return files;
}

const VelAuditDocument* VelAuditShop::document(const QString& theFile) const
{
    for (const auto& document : myDocuments)
        if (document->myFile == theFile)
            return document.get();
    return nullptr;
}

const VelAuditDocument* VelAuditShop::readable(Kind theKind) const
{
    for (const auto& document : myDocuments)
        if (document->myDescription.kind() == theKind)
            return document->myContent.isReadable() ? document.get() : nullptr;
    return nullptr;
}

QDomElement VelAuditShop::root(Kind theKind) const
{
    const VelAuditDocument* document = readable(theKind);
    return document ? document->myContent.root() : QDomElement();
}

QVector<const VelAuditDocument*> VelAuditShop::coupons() const
{
    QVector<const VelAuditDocument*> coupons;
    for (const auto& document : myDocuments)
        if (document->myDescription.kind() == Document::COUPON && document->myContent.isReadable())
            coupons.append(document.get());
    return coupons;
}

void VelAuditShop::read(const VelDocumentDescription& theDescription, const QDir& theFolder, const QString& theFile)
{
    myDocuments.push_back(std::make_unique<const VelAuditDocument>(theDescription, theFolder, theFile));
}
