#include "host/VelshopExplain.h"

#include "host/VelshopAccount.h"
#include "host/VelshopArticle.h"
#include "host/VelshopCart.h"
#include "host/VelshopCommandLine.h"
#include "host/VelshopExitCode.h"
#include "host/VelshopExplainCompare.h"
#include "host/VelshopExplainData.h"
#include "host/VelshopExplainHtml.h"
#include "host/VelshopExplainText.h"
#include "host/VelshopOptions.h"
#include "host/VelshopOrder.h"
#include "host/VelshopOutputFile.h"
#include "host/VelshopProblems.h"
#include "host/VelshopWords.h"
#include "insight/VelPriceExplainer.h"
#include "price/VelTarmPriceView.h"
#include "product/VelProductAbstract.h"

#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QTextStream>

#include <optional>

namespace {

/// What is printed, and to what it is compared.
struct Answer
{
    QString myHead;
    QStringList myNotes;
    VelPriceExplanation myExplanation;
    std::optional<VelPriceExplanation> myBefore;
    QStringList myInputs;
};

/// The library's amounts wrap around; at a desk an amount that no int can hold is not to be believed.
bool isTooLarge(const VelProductAbstract& theProduct, const VelTarmPriceKey& theKey, int theCount, int theLevel)
{
    const VelTarmPriceView view(theProduct, theKey.orderSource());
    qint64 sum = 0;
    for (const VelTarmPriceCharge& charge : theKey.discountModel() == DISCOUNT_MODEL_EXPRESS_FEE
                                                ? view.inModel(theKey.discountModel(), theCount, 0, 0)
                                                : view.best(theCount, billSumFor(&theProduct), theLevel))
        sum += static_cast<qint64>(charge.myUnits) * charge.myBand->price();
    return !VelTarmOrderAmounts::fits(sum);
}

/// The library answers 0 for what only the products of an order say.
VelPriceExplanation withoutPrice(VelExplainedTerm theTerm)
{
    theTerm.myAmount = -1;
    theTerm.myHasPrice = false;
    return {{theTerm}, -1};
}

QStringList notOrderable(const QStringList& theProblems)
{
    QStringList notes;
    for (const QString& problem : theProblems)
        notes.append(QStringLiteral("not orderable: ") + problem);
    return notes;
}

/// The library charges amounts below 0 and packages without an end; the desk sells nothing at them.
QStringList notesOnArticle(VelProductAbstract* theProduct, const VelshopExplainArguments& theArguments,
                           const VelOrderSource& theSource)
{
    if (isFee(theProduct) || theArguments.myLevel != 0)
        return {};
    return notOrderable(VelshopProblems::ofPrice(theProduct, theArguments.myCount, theSource));
}

bool explainArticle(const VelshopExplainArguments& theArguments, Answer& theAnswer, VelshopError& theError)
{
    VelDiscountModel keyModel = DISCOUNT_MODEL_UNDEFINED;
    VelProductAbstract* product = findArticleOrFee(theArguments.myArticle, keyModel, theError);
    VelOrderSource source = VelOrderSource::onlineMailOrder();
    if (!product || !theArguments.myWhatIf.source().complete(source, theError))
        return false;
    theAnswer.myHead = QStringLiteral("By ") + VelshopWords::orderSource(source);
    const VelTarmPriceKey key(source, -1, keyModel);
    if (isTooLarge(*product, key, theArguments.myCount, theArguments.myLevel)) {
        theError = QStringLiteral("%1, %2: the amount is beyond what 32 bits of cents can hold")
                       .arg(product->name(), VelshopWords::pieces(theArguments.myCount));
        return false;
    }
    theAnswer.myExplanation = VelPriceExplainer().price(*product, key, theArguments.myCount, nullptr, nullptr,
                                                        billSumFor(product), theArguments.myLevel);
    if (isFee(product) && product->transferModel() == TRANSFER_MODEL_2)
        theAnswer.myExplanation = withoutPrice(theAnswer.myExplanation.terms().first());
    if (theAnswer.myExplanation.hasPrice())
        theAnswer.myNotes = notesOnArticle(product, theArguments, source);
    return true;
}

QStringList couponFiles(const VelshopCart& theCart)
{
    return theCart.myCouponFile.isEmpty() ? QStringList() : QStringList{theCart.myCouponFile};
}

/// What stands against the order is no part of its amounts, but counts for its coupons.
bool explainOrder(const VelshopCart& theCart, VelPriceExplanation& theExplanation, QStringList& theNotes,
                  VelshopError& theError)
{
    const std::optional<VelTarmOrder> order = makeOrder(theCart, theError);
    if (!order)
        return false;
    theExplanation = VelPriceExplainer(couponFiles(theCart)).order(*order);
    theNotes += notOrderable(VelshopProblems::texts(order->objections(), *order));
    return true;
}

bool explainCart(const VelshopExplainArguments& theArguments, Answer& theAnswer, VelshopError& theError)
{
    VelshopCart cart;
    if (!readCart(theArguments.myCart, cart, theError))
        return false;
    theAnswer.myInputs = QStringList{cart.myFile} + couponFiles(cart);
    QStringList notesBefore;
    if (theArguments.myIsComparison && !explainOrder(cart, theAnswer.myBefore.emplace(), notesBefore, theError))
        return false;
    if (!theArguments.myWhatIf.applyTo(cart, theAnswer.myNotes, theError))
        return false;
    theAnswer.myHead = QStringLiteral("By %1; payment %2; %3")
                           .arg(VelshopWords::orderSource(cart.myStatus.orderSource()),
                                QString::number(cart.myStatus.payment()), VelshopWords::express(cart.myExpress));
    return explainOrder(cart, theAnswer.myExplanation, theAnswer.myNotes, theError);
}

void printJson(const Answer& theAnswer, QTextStream& theOutput)
{
    QJsonObject json = explanationData(theAnswer.myExplanation);
    if (!theAnswer.myNotes.isEmpty())
        json.insert(QStringLiteral("notes"), QJsonArray::fromStringList(theAnswer.myNotes));
    if (theAnswer.myBefore)
        json.insert(QStringLiteral("comparison"), comparisonData(*theAnswer.myBefore, theAnswer.myExplanation));
    theOutput << QJsonDocument(json).toJson();
}

void printText(const Answer& theAnswer, bool theIsAll, QTextStream& theOutput)
{
    printHead(QStringList{theAnswer.myHead} + theAnswer.myNotes, theOutput);
    if (theAnswer.myBefore)
        printComparison(*theAnswer.myBefore, theAnswer.myExplanation, theOutput);
    else
        printExplanation(theAnswer.myExplanation, theIsAll, theOutput);
}

bool writePage(const VelshopExplainArguments& theArguments, const Answer& theAnswer, VelshopError& theError)
{
    if (theArguments.myHtmlFile.isEmpty())
        return true;
    const QStringList inputs = accountDocuments(theArguments.myAccount) + theAnswer.myInputs;
    return VelshopOutputFile::areSafe({theArguments.myHtmlFile}, inputs, theError) &&
           VelshopOutputFile::write(theArguments.myHtmlFile,
                                    explanationPage(theAnswer.myExplanation, theAnswer.myHead, theAnswer.myNotes),
                                    theError);
}

QString unpriced(const VelPriceExplanation& theExplanation)
{
    QStringList names;
    for (const VelExplainedTerm& term : theExplanation.terms())
        if (!term.myHasPrice)
            names.append(termText(term));
    return names.join(QStringLiteral("; ")) + QStringLiteral(": no price");
}

/// What belongs to carts alone, or to articles alone, is refused elsewhere: it would do nothing.
bool fitTogether(const VelshopCommandLine& theLine, const VelshopExplainArguments& theArguments, VelshopError& theError)
{
    const bool isCart = !theArguments.myCart.isEmpty();
    if (isCart && theLine.isSet(VelshopOptions::STR_LEVEL))
        theError = QStringLiteral("--level goes with an article: in a cart the main products say it");
    else if (!isCart && (theArguments.myIsComparison || theArguments.myWhatIf.isMoreThanSource()))
        theError = QStringLiteral("--payment, --express, --no-coupon and --compare go with a cart");
    else if (theArguments.myIsComparison && !theArguments.myWhatIf.isAny())
        theError = QStringLiteral("--compare needs something that is other than in the cart, such as --source");
    else if (theArguments.myIsComparison && (theArguments.myIsAll || !theArguments.myHtmlFile.isEmpty()))
        theError = QStringLiteral("--compare prints the differences alone: it goes without --all and --html");
    return theError.isEmpty();
}

/// A number that is no file is an article whose count was forgotten.
bool readCartWord(const QString& theWord, VelshopExplainArguments& theArguments, VelshopError& theError)
{
    bool isNumber = false;
    theWord.toInt(&isNumber);
    if (isNumber && !QFileInfo::exists(theWord))
        theError = QStringLiteral("%1 is an article: say how many pieces, as in explain %1 25").arg(theWord);
    theArguments.myCart = theWord;
    return theError.isEmpty();
}

bool readWords(const QStringList& theWords, VelshopExplainArguments& theArguments, VelshopError& theError)
{
    if (theWords.size() == 1)
        return readCartWord(theWords.first(), theArguments, theError);
    return VelshopCommandLine::readNumber(theWords.at(0), QStringLiteral("ARTICLE"), VelshopCommandLine::LOWEST_ID,
                                          theArguments.myArticle, theError) &&
           VelshopCommandLine::readNumber(theWords.at(1), QStringLiteral("COUNT"), 1, theArguments.myCount, theError);
}

} // namespace

bool readExplainArguments(const VelshopCommandLine& theLine, VelshopExplainArguments& theArguments,
                          VelshopError& theError)
{
    theArguments.myIsAll = theLine.isSet(VelshopOptions::STR_ALL);
    theArguments.myIsComparison = theLine.isSet(VelshopOptions::STR_COMPARE);
    return readWords(theLine.words(), theArguments, theError) &&
           theLine.readNumberOption(VelshopOptions::STR_LEVEL, 0, theArguments.myLevel, theError) &&
           theLine.readFileOption(VelshopOptions::STR_HTML, theArguments.myHtmlFile, theError) &&
           theArguments.myWhatIf.read(theLine, theError) && fitTogether(theLine, theArguments, theError);
}

int explain(const VelshopExplainArguments& theArguments, QTextStream& theOutput, VelshopError& theError)
{
    Answer answer;
    const bool isExplained = theArguments.myCart.isEmpty() ? explainArticle(theArguments, answer, theError)
                                                           : explainCart(theArguments, answer, theError);
    if (!isExplained || !writePage(theArguments, answer, theError))
        return EXIT_BAD_INPUT;
    if (theArguments.myIsJson)
        printJson(answer, theOutput);
    else
        printText(answer, theArguments.myIsAll, theOutput);
    if (answer.myExplanation.hasPrice())
        return EXIT_DONE;
    theError = unpriced(answer.myExplanation);
    return EXIT_NO_PRICE;
}
