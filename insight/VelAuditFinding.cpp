#include "insight/VelAuditFinding.h"

#include <tuple>

namespace {

QString textOf(const QString& theFile, const VelDocumentPlace& thePlace)
{
    return QStringLiteral("%1:%2:%3")
        .arg(theFile, QString::number(thePlace.myLine), QString::number(thePlace.myColumn));
}

} // namespace

QString VelAuditFinding::nameOf(VelAuditSeverity theSeverity)
{
    switch (theSeverity) {
    case SEVERITY_ERROR:
        return QStringLiteral("error");
    case SEVERITY_WARNING:
        return QStringLiteral("warning");
    case SEVERITY_NOTE:
        break;
    }
    return QStringLiteral("note");
}

QString VelAuditFinding::placeText() const
{
    return textOf(myFile, myPlace);
}

QString VelAuditFinding::otherPlaceText() const
{
    return myOther.isValid() ? textOf(myOtherFile, myOther) : QString();
}

VelAuditFinding& VelAuditFinding::as(VelAuditSeverity theSeverity)
{
    mySeverity = theSeverity;
    return *this;
}

VelAuditFinding& VelAuditFinding::about(int theArticle)
{
    myArticle = theArticle;
    return *this;
}

VelAuditFinding& VelAuditFinding::beside(const QString& theFile, const VelDocumentPlace& thePlace,
                                         const QString& theMessage)
{
    myOtherFile = theFile;
    myOther = thePlace;
    myOtherMessage = theMessage;
    return *this;
}

bool operator<(const VelAuditFinding& theLeft, const VelAuditFinding& theRight)
{
    const auto key = [](const VelAuditFinding& theFinding) {
        return std::tie(theFinding.myFile, theFinding.myPlace.myLine, theFinding.myPlace.myColumn,
                        theFinding.mySeverity, theFinding.myRule, theFinding.myMessage);
    };
    return key(theLeft) < key(theRight);
}
