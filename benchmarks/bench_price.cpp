#include "price/VelTarmPriceKey.h"
#include "product/VelProduct.h"

#include <QDomDocument>

#include <benchmark/benchmark.h>

namespace {

QString article(const QString& thePrices)
{
    return QStringLiteral("<article id='1' arrangement='trivial'><base_prices>%1</base_prices></article>")
        .arg(thePrices);
}

const QString BULK = QStringLiteral("<p price='100'/><p level='1' quantity='10' price='90'/>"
                                    "<p level='2' quantity='50' price='80'/><p level='3' quantity='100' price='70'/>");

const QString PACKAGE = QStringLiteral("<p type='P' level='1' quantity='1' price='500'/>"
                                       "<p type='P' level='2' quantity='11' price='900'/>"
                                       "<p type='p' level='3' quantity='21' price='40'/>");

const int BILLING_SUM = 5000;

/// One query, with its answer checked before it is measured.
void priceFor(benchmark::State& theState, const QString& thePrices, int theCount, int theExpected)
{
    QDomDocument document;
    document.setContent(article(thePrices));
    const VelProduct product(document.documentElement());
    const VelTarmPriceKey key(VelOrderSource::onlineMailOrder(), -1, DISCOUNT_MODEL_UNDEFINED);
    if (product.price(key, theCount, BILLING_SUM) != theExpected)
        theState.SkipWithError("wrong amount");
    for (auto _ : theState)
        benchmark::DoNotOptimize(product.price(key, theCount, BILLING_SUM));
}

BENCHMARK_CAPTURE(priceFor, bulk, BULK, 60, 4800);
BENCHMARK_CAPTURE(priceFor, bulkBaseOnly, QStringLiteral("<p price='100'/>"), 60, 6000);
BENCHMARK_CAPTURE(priceFor, package, PACKAGE, 25, 1100);
BENCHMARK_CAPTURE(priceFor, bulkAndPackage, BULK + PACKAGE, 25, 1100);
BENCHMARK_CAPTURE(priceFor, inherited, QStringLiteral("<p type='I' price='390'/>"), 3, 1170);
BENCHMARK_CAPTURE(priceFor, bulkTransfer,
                  QStringLiteral("<p type='F' price='395'/><p type='F' level='1' quantity='2' price='495'/>"), 3, 495);
BENCHMARK_CAPTURE(priceFor, billingSumTransfer,
                  QStringLiteral("<p type='F' price='395'/><p type='Z' level='1' quantity='4000' price='0'/>"), 3, 0);
BENCHMARK_CAPTURE(priceFor, expressFee, QStringLiteral("<p type='X' price='490'/>"), 3, 490);

} // namespace
