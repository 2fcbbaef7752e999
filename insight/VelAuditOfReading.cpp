#include "insight/VelAuditChecks.h"
#include "insight/VelAuditReport.h"
#include "insight/VelAuditShop.h"
#include "insight/VelAuditWords.h"

namespace {

const char* const UNREADABLE = "unreadable";
const char* const BAD_BYTES = "bad-bytes";
const char* const UNKNOWN_ENCODING = "unknown-encoding";
const char* const NOT_WELL_FORMED = "not-well-formed";

const QStringList& encodings()
{
    static const QStringList names{QStringLiteral("UTF-8"), QStringLiteral("UTF-16"), QStringLiteral("ISO-8859-1")};
    return names;
}

/// The bad bytes of one line are one finding, or a whole document in another encoding would drown all else.
void checkBytes(const VelAuditDocument& theDocument, VelAuditReport& theReport)
{
    const QVector<VelDocumentPlace> places = theDocument.myContent.text().badCharacters();
    for (int index = 0; index < places.size();) {
        int next = index + 1;
        while (next < places.size() && places.at(next).myLine == places.at(index).myLine)
            ++next;
        const int others = next - index - 1;
        const QString rest = others > 0 ? QStringLiteral(", and %1 more in this line").arg(others) : QString();
        theReport.at(BAD_BYTES, theDocument, places.at(index), QString(),
                     QStringLiteral("these bytes are no character of the encoding%1; a replacement character is read")
                         .arg(rest));
        index = next;
    }
}

void checkEncoding(const VelAuditDocument& theDocument, VelAuditReport& theReport)
{
    const VelDocumentText& text = theDocument.myContent.text();
    if (!text.isEncodingKnown())
        theReport.at(UNKNOWN_ENCODING, theDocument, text.encodingPlace(), text.encodingName(),
                     QStringLiteral("there is no encoding %1; UTF-8 is read")
                         .arg(VelAuditWords::withSuggestion(text.encodingName(), encodings())));
}

void checkOddities(const VelAuditDocument& theDocument, VelAuditReport& theReport)
{
    for (const VelDocumentPositions::Remark& oddity : theDocument.myContent.positions().oddities())
        theReport.at(NOT_WELL_FORMED, theDocument, oddity.myPlace, QString(), oddity.myReason);
}

} // namespace

void VelAuditChecks::checkReading(const VelAuditShop& theShop, VelAuditReport& theReport)
{
    for (const auto& document : theShop.documents()) {
        const VelDocumentPositions::Remark& error = document->myContent.error();
        if (!document->myContent.isReadable())
            theReport.at(UNREADABLE, *document, error.myPlace, QString(), error.myReason);
        checkBytes(*document, theReport);
        checkEncoding(*document, theReport);
        if (document->myContent.isReadable())
            checkOddities(*document, theReport);
    }
}
