#include "host/VelshopExplain.h"

#include "frame/VelTarmStatus.h"
#include "host/VelshopArticle.h"
#include "host/VelshopCommandLine.h"
#include "host/VelshopExitCode.h"
#include "host/VelshopExplainData.h"
#include "host/VelshopExplainText.h"
#include "host/VelshopOptions.h"
#include "host/VelshopWords.h"
#include "insight/VelPriceExplainer.h"
#include "product/VelProductAbstract.h"

#include <QJsonDocument>
#include <QTextStream>

namespace {

void print(const VelPriceExplanation& theExplanation, const QString& theHead,
           const VelshopExplainArguments& theArguments, QTextStream& theOutput)
{
    if (theArguments.myIsJson)
        theOutput << QJsonDocument(explanationData(theExplanation)).toJson();
    else
        printExplanation(theExplanation, theHead, theArguments.myIsAll, theOutput);
}

} // namespace

bool readExplainArguments(const VelshopCommandLine& theLine, VelshopExplainArguments& theArguments,
                          VelshopError& theError)
{
    theArguments.myIsAll = theLine.isSet(VelshopOptions::STR_ALL);
    return VelshopCommandLine::readNumber(theLine.words().at(0), QStringLiteral("ARTICLE"),
                                          VelshopCommandLine::LOWEST_ID, theArguments.myArticle, theError) &&
           VelshopCommandLine::readNumber(theLine.words().at(1), QStringLiteral("COUNT"), 1, theArguments.myCount,
                                          theError) &&
           theLine.readNumberOption(VelshopOptions::STR_LEVEL, 0, theArguments.myLevel, theError) &&
           theArguments.mySource.read(theLine, theError);
}

int explain(const VelshopExplainArguments& theArguments, QTextStream& theOutput, VelshopError& theError)
{
    const VelProductAbstract* product = findArticle(theArguments.myArticle, theError);
    VelOrderSource source = VelOrderSource::onlineMailOrder();
    if (!product || !theArguments.mySource.complete(source, theError))
        return EXIT_BAD_INPUT;
    VelTarmStatus status;
    status.setOrderSource(source);
    const VelPriceExplanation explanation = VelPriceExplainer().price(*product, status.priceKey(), theArguments.myCount,
                                                                      nullptr, nullptr, 0, theArguments.myLevel);
    print(explanation, QStringLiteral("By ") + VelshopWords::orderSource(source), theArguments, theOutput);
    if (explanation.hasPrice())
        return EXIT_DONE;
    theError = QStringLiteral("%1 %2, %3 pieces by %4: no price")
                   .arg(QString::number(product->articleID()), product->name(), QString::number(theArguments.myCount),
                        VelshopWords::orderSource(source));
    return EXIT_NO_PRICE;
}
