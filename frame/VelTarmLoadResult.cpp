#include "frame/VelTarmLoadResult.h"

#include "sibling/VelGuardedDocument.h"

namespace {

/// Why the file gives no document. It is read once more, since the loader of a sibling library answers with no more
/// than a null element. What isn't a regular file may have no second reading, or no end.
VelGuardedDocument::Refusal refusalOf(const QFileInfo& theFile)
{
    VelGuardedDocument::Refusal refusal;
    if (theFile.exists() && !theFile.isFile())
        refusal.myReason = QStringLiteral("it is not a regular file");
    else if (!VelGuardedDocument::load(theFile, refusal).isNull())
        refusal.myReason = QStringLiteral("the document loader refuses it");
    return refusal;
}

} // namespace

VelTarmLoadResult::VelTarmLoadResult(const QFileInfo& theFile, const QDomElement& theRoot)
    : myFile(theFile.filePath()), myWasRead(!theRoot.isNull())
{
    if (myWasRead)
        return;
    const VelGuardedDocument::Refusal refusal = refusalOf(QFileInfo(myFile)); // the given one may know a former state
    myReason = refusal.myReason;
    myLine = refusal.myLine;
    myColumn = refusal.myColumn;
}

QString VelTarmLoadResult::problem() const
{
    if (myReason.isNull())
        return QString();
    const QString place = myLine > 0 ? QStringLiteral(", line %1, column %2").arg(myLine).arg(myColumn) : QString();
    return QStringLiteral("%1%2: %3").arg(myFile, place, myReason);
}

void VelTarmLoadResult::setProducts(int theNew, int theUpdated, int theDeprecated)
{
    myNewProducts = theNew;
    myUpdatedProducts = theUpdated;
    myDeprecatedProducts = theDeprecated;
}
