#include "host/VelshopExplainText.h"

#include "host/VelshopExplainData.h"
#include "host/VelshopWords.h"
#include "ordering/VelTarmShippingGroupManager.h"

#include <QTextStream>

namespace {

const int WIDTH = 80;

QString spaces(int theCount)
{
    return QString(theCount, QLatin1Char(' '));
}

/// In lines of that width, the following ones two further in.
QStringList wrapped(const QString& theText, int theIndent, int theWidth)
{
    QStringList lines;
    QString line = spaces(theIndent);
    bool isEmpty = true;
    for (const QString& word : theText.split(QLatin1Char(' '))) {
        if (!isEmpty && line.size() + 1 + word.size() > theWidth) {
            lines.append(line);
            line = spaces(theIndent + 2);
            isEmpty = true;
        }
        line += isEmpty ? word : QLatin1Char(' ') + word;
        isEmpty = false;
    }
    return lines << line;
}

void printWrapped(const QString& theText, int theIndent, QTextStream& theOutput)
{
    for (const QString& line : wrapped(theText, theIndent, WIDTH))
        theOutput << line << '\n';
}

/// With the amount at the right end of the last line.
void printAmount(const QString& theText, int theIndent, const QString& theAmount, QTextStream& theOutput)
{
    const int room = WIDTH - static_cast<int>(theAmount.size()) - 2;
    QStringList lines = wrapped(theText, theIndent, room);
    lines.last() = lines.last().leftJustified(room) + spaces(2) + theAmount;
    theOutput << lines.join(QLatin1Char('\n')) << '\n';
}

void printPlaces(const char* theHead, const QVector<VelExplainedPlace>& thePlaces, int theIndent,
                 QTextStream& theOutput)
{
    if (!thePlaces.isEmpty())
        theOutput << spaces(theIndent) << theHead << '\n';
    for (const VelExplainedPlace& place : thePlaces)
        theOutput << spaces(theIndent + 2) << placeText(place) << '\n';
}

/// What an author looks at first: the amounts that were charged.
void printChargedPlaces(const VelExplainedTerm& theTerm, QTextStream& theOutput)
{
    for (const VelExplainedPlace& place : theTerm.myPlaces.myDecides)
        if (place.myAttribute.contains(QLatin1String("price")))
            theOutput << spaces(4) << placeText(place) << '\n';
}

void printTerm(const VelExplainedTerm& theTerm, bool theIsAll, QTextStream& theOutput)
{
    printAmount(termText(theTerm), 2, amountText(theTerm.myHasPrice, theTerm.myAmount), theOutput);
    printWrapped(theTerm.myComputed.isEmpty() ? theTerm.myReason
                                              : theTerm.myComputed + QStringLiteral("; ") + theTerm.myReason,
                 4, theOutput);
    for (const VelExplainedNeed& need : theTerm.myNeeds)
        printWrapped(QStringLiteral("has a price by ") + needText(need), 4, theOutput);
    if (!theIsAll)
        return printChargedPlaces(theTerm, theOutput);
    for (const VelExplainedCandidate& candidate : theTerm.myCandidates)
        printWrapped(candidateText(candidate), 4, theOutput);
    printPlaces("decides:", theTerm.myPlaces.myDecides, 4, theOutput);
    printPlaces("compared:", theTerm.myPlaces.myCompared, 4, theOutput);
}

/// As ", 51 to 100"; an inherited level holds whatever the quantity.
QString bandText(const VelExplainedCandidate& theCandidate)
{
    if (theCandidate.myModel == DISCOUNT_MODEL_INHERITED_DISCOUNT)
        return QString();
    return QStringLiteral(", ") + VelshopWords::band({theCandidate.myModel, theCandidate.myFrom, theCandidate.myTo,
                                                      theCandidate.myLevel, false});
}

} // namespace

QString termText(const VelExplainedTerm& theTerm)
{
    QString text = theTerm.myKind == VelExplainedTerm::ITEM ? QString() : kindWord(theTerm.myKind) + QLatin1Char(' ');
    if (theTerm.myArticle != 0)
        text += QStringLiteral("%1 ").arg(theTerm.myArticle);
    text += theTerm.myName;
    if (theTerm.myKind == VelExplainedTerm::ITEM)
        text += QStringLiteral(", ") + VelshopWords::pieces(theTerm.myCount);
    return text.trimmed();
}

QString groupText(int theGroup)
{
    return QStringLiteral("Shipping group %1 %2")
        .arg(theGroup)
        .arg(VelTarmShippingGroupManager::instance()->shippingGroupName(theGroup))
        .trimmed();
}

bool beginsGroup(const VelExplainedTerm* theFormer, const VelExplainedTerm& theTerm)
{
    return theTerm.myGroup != -1 && (!theFormer || theFormer->myGroup != theTerm.myGroup);
}

QString amountText(bool theHasPrice, qint64 theAmount)
{
    return theHasPrice ? VelshopWords::money(static_cast<int>(theAmount)) : QStringLiteral("no price");
}

QString candidateText(const VelExplainedCandidate& theCandidate)
{
    QString text = VelshopWords::discountModel(theCandidate.myModel);
    if (theCandidate.myLevel != VelExplainedCandidate::NONE)
        text += QStringLiteral(", level %1").arg(theCandidate.myLevel) + bandText(theCandidate);
    if (theCandidate.myAmount != -1)
        text += QStringLiteral(": ") + VelshopWords::money(theCandidate.myAmount);
    if (!theCandidate.myComputed.isEmpty())
        text += QStringLiteral(" = ") + theCandidate.myComputed;
    return text + QStringLiteral(": ") + theCandidate.myVerdict;
}

QString needText(const VelExplainedNeed& theNeed)
{
    QString text = QStringLiteral("%1 from %2 on")
                       .arg(VelshopWords::orderSource(theNeed.myOrderSource), VelshopWords::pieces(theNeed.myFrom));
    if (theNeed.myLevel != 0)
        text += QStringLiteral(" with a main product of level %1").arg(theNeed.myLevel);
    return text;
}

QString placeText(const VelExplainedPlace& thePlace)
{
    const QString value = thePlace.isDefault()
                              ? QStringLiteral("no %1, its default counts").arg(thePlace.myAttribute)
                              : QStringLiteral("%1=\"%2\"").arg(thePlace.myAttribute, thePlace.myValue);
    return QStringLiteral("%1:%2:%3: %4")
        .arg(thePlace.myFile)
        .arg(thePlace.myPlace.myLine)
        .arg(thePlace.myPlace.myColumn)
        .arg(value);
}

void printHead(const QStringList& theLines, QTextStream& theOutput)
{
    for (const QString& line : theLines)
        printWrapped(line, 0, theOutput);
}

void printExplanation(const VelPriceExplanation& theExplanation, bool theIsAll, QTextStream& theOutput)
{
    const VelExplainedTerm* former = nullptr;
    for (const VelExplainedTerm& term : theExplanation.terms()) {
        if (beginsGroup(former, term))
            printWrapped(groupText(term.myGroup), 0, theOutput);
        printTerm(term, theIsAll, theOutput);
        former = &term;
    }
    if (theExplanation.terms().size() != 1)
        printAmount(QStringLiteral("total"), 0, amountText(theExplanation.hasPrice(), theExplanation.total()),
                    theOutput);
}
