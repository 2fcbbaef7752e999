#include "insight/VelAuditPhrases.h"

#include "insight/VelPriceWords.h"
#include "insight/VelVocabularies.h"

namespace {

QString meaning(const VelVocabulary& theVocabulary, int theValue)
{
    for (const VelVocabulary::Word& word : theVocabulary.myWords)
        if (word.myValue == theValue)
            return word.myMeaning;
    return QString::number(theValue);
}

} // namespace

QString VelAuditPhrases::orderWay(const VelOrderSource& theSource)
{
    static const VelVocabulary inputs = VelVocabularies::inputSources();
    static const VelVocabulary deliveries = VelVocabularies::deliveryTypes();
    return QStringLiteral("%1 to %2")
        .arg(meaning(inputs, theSource.inputSource()), meaning(deliveries, theSource.deliveryType()));
}

QString VelAuditPhrases::entry(const VelAuditCatalog::Entry& theEntry)
{
    static const QString words[] = {QStringLiteral("article"), QStringLiteral("add-on"), QStringLiteral("payment fee"),
                                    QStringLiteral("transfer"), QStringLiteral("express fee")};
    return QStringLiteral("%1 %2").arg(words[theEntry.myKind]).arg(theEntry.myId);
}

QString VelAuditPhrases::pieces(int theCount)
{
    return VelPriceWords::counted(theCount, QStringLiteral("piece"));
}

QString VelAuditPhrases::piecesCost(int theCount)
{
    return pieces(theCount) + (theCount == 1 ? QStringLiteral(" costs") : QStringLiteral(" cost"));
}

QString VelAuditPhrases::cents(int theAmount)
{
    return VelPriceWords::counted(theAmount, QStringLiteral("cent"));
}

QString VelAuditPhrases::line(const VelAuditDocument& theDocument, const QDomElement& theElement)
{
    return QStringLiteral("line %1").arg(theDocument.myContent.place(theElement).myLine);
}

void VelAuditPhrases::beside(VelAuditFinding& theFinding, const VelAuditDocument& theDocument,
                             const QDomElement& theElement, const QString& theAttribute, const QString& theMessage)
{
    const VelDocumentPlace value = theDocument.myContent.attributeValue(theElement, theAttribute);
    theFinding.beside(theDocument.myFile, value.isValid() ? value : theDocument.myContent.place(theElement),
                      theMessage);
}
