#include "price/VelTarmPriceKey.h"
#include "product/VelProduct.h"

#include <QDomDocument>

#include <benchmark/benchmark.h>

namespace {

const VelOrderSource MAIL = VelOrderSource::onlineMailOrder();

QDomElement article(const QString& thePrices)
{
    QDomDocument document;
    document.setContent(
        QStringLiteral("<article id='1' arrangement='trivial'><base_prices>%1</base_prices></article>").arg(thePrices));
    return document.documentElement();
}

const QString BULK = QStringLiteral("<p price='100'/><p level='1' quantity='10' price='90'/>"
                                    "<p level='2' quantity='50' price='80'/><p level='3' quantity='100' price='70'/>");

const QString PACKAGE = QStringLiteral("<p type='P' level='1' quantity='1' price='500'/>"
                                       "<p type='P' level='2' quantity='11' price='900'/>"
                                       "<p type='p' level='3' quantity='21' price='40'/>");

/// One query, with its answer checked before it is measured.
void query(benchmark::State& theState, const QString& thePrices, VelDiscountModel theModel, int theCount,
           int theExpected)
{
    const VelProduct product(article(thePrices));
    const VelTarmPriceKey key(MAIL, -1, theModel);
    if (product.price(key, theCount, 5000) != theExpected)
        theState.SkipWithError("wrong amount");
    for (auto _ : theState)
        benchmark::DoNotOptimize(product.price(key, theCount, 5000));
}

void priceFor(benchmark::State& theState, const QString& thePrices, int theCount, int theExpected)
{
    query(theState, thePrices, DISCOUNT_MODEL_UNDEFINED, theCount, theExpected);
}

BENCHMARK_CAPTURE(priceFor, bulk, BULK, 60, 4800);
BENCHMARK_CAPTURE(priceFor, bulkBaseOnly, QStringLiteral("<p price='100'/>"), 60, 6000);
BENCHMARK_CAPTURE(priceFor, package, PACKAGE, 25, 1100);
BENCHMARK_CAPTURE(
    priceFor, levelPackage,
    QString(PACKAGE).replace(QLatin1Char('P'), QLatin1Char('L')).replace(QStringLiteral("'p'"), QStringLiteral("'l'")),
    25, 1100);
BENCHMARK_CAPTURE(priceFor, bulkAndPackage, BULK + PACKAGE, 25, 1100);
BENCHMARK_CAPTURE(priceFor, inherited, QStringLiteral("<p type='I' price='390'/>"), 3, 1170);
BENCHMARK_CAPTURE(priceFor, bulkTransfer,
                  QStringLiteral("<p type='F' price='395'/><p type='F' level='1' quantity='2' price='495'/>"), 3, 495);
BENCHMARK_CAPTURE(priceFor, billingSumTransfer,
                  QStringLiteral("<p type='F' price='395'/><p type='Z' level='1' quantity='4000' price='0'/>"), 3, 0);
BENCHMARK_CAPTURE(query, expressFee, QStringLiteral("<p type='X' price='490'/>"), DISCOUNT_MODEL_EXPRESS_FEE, 3, 490);

} // namespace
