#include "host/VelshopCurve.h"

#include "host/VelshopArticle.h"
#include "host/VelshopCommandLine.h"
#include "host/VelshopCurveData.h"
#include "host/VelshopCurveSvg.h"
#include "host/VelshopCurveText.h"
#include "host/VelshopExitCode.h"
#include "host/VelshopOptions.h"
#include "host/VelshopOutputFile.h"
#include "host/VelshopWords.h"
#include "insight/VelShopFees.h"
#include "ordering/VelOrderingDetails.h"
#include "product/VelProductAbstract.h"
#include "product/VelProductRegistry.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QTextStream>

namespace {

const QString STR_QUANTITY = QStringLiteral("quantity");
const QString STR_SUM = QStringLiteral("sum");

bool readVariable(const VelshopCommandLine& theLine, VelshopCurveArguments& theArguments, VelshopError& theError)
{
    const QString word = theLine.value(VelshopOptions::STR_BY);
    theArguments.myIsBySum = word == STR_SUM;
    if (theLine.isSet(VelshopOptions::STR_BY) && word != STR_SUM && word != STR_QUANTITY)
        theError = QStringLiteral("--by must be quantity or sum, not \"%1\"").arg(word);
    return theError.isEmpty();
}

/// An article, or the dips of all.
bool readSubject(const VelshopCommandLine& theLine, VelshopCurveArguments& theArguments, VelshopError& theError)
{
    theArguments.myWantsDips = theLine.isSet(VelshopOptions::STR_DIPS);
    theArguments.myHasGroup = theLine.isSet(VelshopOptions::STR_GROUP);
    const bool hasArticle = !theLine.words().isEmpty();
    if (hasArticle == theArguments.myWantsDips)
        theError = QStringLiteral("curve takes an article or --dips");
    else if (hasArticle && theArguments.myHasGroup)
        theError = QStringLiteral("--group goes with --dips");
    else if (!hasArticle && theLine.isSet(VelshopOptions::STR_SVG))
        theError = QStringLiteral("--svg goes with an article");
    else if (hasArticle)
        VelshopCommandLine::readNumber(theLine.words().at(0), QStringLiteral("ARTICLE"), VelshopCommandLine::LOWEST_ID,
                                       theArguments.myArticle, theError);
    return theError.isEmpty();
}

bool readTo(const VelshopCommandLine& theLine, VelshopCurveArguments& theArguments, VelshopError& theError)
{
    if (!theLine.readNumberOption(VelshopOptions::STR_TO, 1, theArguments.myTo, theError))
        return false;
    if (!theArguments.myIsBySum && theArguments.myTo > VelPriceCurve::HIGHEST_QUANTITY)
        theError = QStringLiteral("--to must be at most %1").arg(VelPriceCurve::HIGHEST_QUANTITY);
    return theError.isEmpty();
}

VelPriceCurve::Range rangeOf(const VelProductAbstract* theProduct, const VelOrderSource& theSource,
                             const VelshopCurveArguments& theArguments)
{
    VelPriceCurve::Range range;
    range.myVariable = theArguments.myIsBySum ? VelPriceCurve::BY_SUM : VelPriceCurve::BY_QUANTITY;
    range.myTo =
        theArguments.myTo > 0 ? theArguments.myTo : VelPriceCurve::telling(*theProduct, theSource, range.myVariable);
    range.myInheritedLevel = theArguments.myLevel;
    return range;
}

// ---- the curve of one article

int printCurve(const VelshopCurveSheet& theSheet, const VelshopCurveArguments& theArguments, QTextStream& theOutput,
               VelshopError& theError)
{
    const QString& svg = theArguments.mySvgFile;
    if (!svg.isEmpty() && !VelshopOutputFile::write(svg, VelshopCurveSvg::picture(theSheet), theError))
        return EXIT_BAD_INPUT;
    if (theArguments.myIsJson)
        theOutput << QJsonDocument(curveData(theSheet, true)).toJson();
    else
        VelshopCurveText::print(theSheet, theOutput);
    if (!theSheet.myCurve.pieces().isEmpty())
        return EXIT_DONE;
    theError = QStringLiteral("%1: no price").arg(VelshopCurveText::head(theSheet));
    return EXIT_NO_PRICE;
}

int drawArticle(const VelshopCurveArguments& theArguments, QTextStream& theOutput, VelshopError& theError)
{
    VelOrderSource source = VelOrderSource::onlineMailOrder();
    VelDiscountModel keyModel = DISCOUNT_MODEL_UNDEFINED;
    const VelProductAbstract* product = findArticleOrFee(theArguments.myArticle, keyModel, theError);
    if (!product || !theArguments.mySource.complete(source, theError))
        return EXIT_BAD_INPUT;
    VelPriceCurve::Range range = rangeOf(product, source, theArguments);
    range.myModel = keyModel;
    const VelshopCurveSheet sheet = makeCurveSheet(product, source, range);
    if (!sheet.myCurve.isByProducts())
        return printCurve(sheet, theArguments, theOutput, theError);
    theError =
        QStringLiteral("%1 is charged by the products of an order and has no curve").arg(VelshopCurveText::head(sheet));
    return EXIT_NO_PRICE;
}

// ---- the dips of the shop

QList<VelOrderSource> sourcesToSearch(const VelshopCurveArguments& theArguments, VelshopError& theError)
{
    VelOrderSource source = VelOrderSource::onlineMailOrder();
    if (!theArguments.mySource.isNamed())
        return VelOrderingDetails::instance()->availableOrderSources();
    return theArguments.mySource.complete(source, theError) ? QList<VelOrderSource>{source} : QList<VelOrderSource>();
}

QList<VelshopCurveSheet> sheetsWithDips(const VelshopCurveArguments& theArguments, VelshopError& theError)
{
    QList<VelshopCurveSheet> sheets;
    const QList<VelOrderSource> sources = sourcesToSearch(theArguments, theError);
    for (const VelProductAbstract* product : VelProductRegistry::instance()->productList()) {
        if (product->isDeprecated() || (theArguments.myHasGroup && product->shippingGroupId() != theArguments.myGroup))
            continue;
        for (const VelOrderSource& source : sources) {
            const VelshopCurveSheet sheet = makeCurveSheet(product, source, rangeOf(product, source, theArguments));
            if (!sheet.myDips.isEmpty())
                sheets.append(sheet);
        }
    }
    return sheets;
}

int listDips(const VelshopCurveArguments& theArguments, QTextStream& theOutput, VelshopError& theError)
{
    const QList<VelshopCurveSheet> sheets = sheetsWithDips(theArguments, theError);
    if (!theError.isEmpty())
        return EXIT_BAD_INPUT;
    if (!theArguments.myIsJson) {
        VelshopCurveText::printDips(sheets, theOutput);
        return EXIT_DONE;
    }
    QJsonArray curves;
    for (const VelshopCurveSheet& sheet : sheets)
        curves.append(curveData(sheet, false));
    theOutput << QJsonDocument(curves).toJson();
    return EXIT_DONE;
}

} // namespace

bool readCurveArguments(const VelshopCommandLine& theLine, VelshopCurveArguments& theArguments, VelshopError& theError)
{
    return readSubject(theLine, theArguments, theError) && readVariable(theLine, theArguments, theError) &&
           readTo(theLine, theArguments, theError) &&
           theLine.readNumberOption(VelshopOptions::STR_LEVEL, 0, theArguments.myLevel, theError) &&
           theLine.readNumberOption(VelshopOptions::STR_GROUP, VelshopCommandLine::LOWEST_ID, theArguments.myGroup,
                                    theError) &&
           theArguments.mySource.read(theLine, theError) &&
           theLine.readFileOption(VelshopOptions::STR_SVG, theArguments.mySvgFile, theError);
}

int drawCurve(const VelshopCurveArguments& theArguments, QTextStream& theOutput, VelshopError& theError)
{
    return theArguments.myWantsDips ? listDips(theArguments, theOutput, theError)
                                    : drawArticle(theArguments, theOutput, theError);
}
