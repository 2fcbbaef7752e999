#include "insight/VelAudit.h"
#include "insight/VelAuditRules.h"
#include "properties/NastyShop.h"
#include "support/VelTestMain.h"

#include <QTemporaryDir>

namespace {

/// A shop against which nothing can be said, not even a note.
const QMap<QString, QString> SOUND_SHOP{
    {"pricelist.xml", R"(<pricelist><articles>
<article id='101' group='1' arrangement='trivial'><base_prices><price price='12'/></base_prices></article>
<article id='102' group='1' arrangement='trivial'><base_prices><price price='100'/></base_prices><discount_prices>
  <price level='1' quantity='10' price='95'/><price level='2' quantity='20' price='94'/></discount_prices></article>
<article id='103' group='1' arrangement='trivial'><discount_prices><price type='P' level='1' quantity='1' price='500'/>
  <price type='P' level='2' quantity='11' price='900'/><price type='p' level='3' quantity='21' price='45'/>
  </discount_prices></article>
<article id='9181' group='4' arrangement='photobook' min_pages='24' max_pages='72' page_step='8'>
  <order_txt_lines><line>TYPE=ALB6</line></order_txt_lines><shipping_times>
  <shipping_time days='3-5' delivery_type='1' express='0'/><shipping_time days='2' delivery_type='1' express='1'/>
  </shipping_times><base_prices><price price='900'/><price price='950' input_source='4' delivery_type='2'/></base_prices>
  </article>
<article id='8026' group='4' arrangement='calendar' min_pages='13' max_pages='13'>
  <order_txt_lines><line>TYPE=CAL6</line></order_txt_lines><base_prices><price price='1200'/></base_prices></article>
</articles><add_ons><add_on id='5001' group='4' product_class='GPT1'><base_prices><price type='I' price='150'/></base_prices>
  <discount_prices><price type='I' level='1' quantity='5' price='140'/></discount_prices>
  <linked_articles><linked_article id='9181'/></linked_articles></add_on></add_ons>
<paymethod_fees><paymethod_fee id='12003' pay_method_id='3'><base_prices><price price='95'/></base_prices></paymethod_fee>
<paymethod_fee id='12001' pay_method_id='1'><base_prices><price price='0' input_source='4' delivery_type='2'/></base_prices>
</paymethod_fee></paymethod_fees>
<transfers><transfer id='11001' group='1'><base_prices>
  <price price='295'/><price type='Z' level='1' quantity='5000' price='0'/></base_prices></transfer>
<transfer id='11004' group='4' model='2'><base_prices><price type='F' price='0'/></base_prices></transfer></transfers>
<express_fees><express_fee id='13041' group='4' express='1'><base_prices><price price='490'/></base_prices></express_fee>
</express_fees></pricelist>)"},
    {"orderingdetails.xml", R"(<orderingdetails>
<pay_methods><pay_method id='3' name='Bill'/><pay_method id='1' name='Card'/></pay_methods>
<order_sources><order_source input_source='0' delivery_type='1'><permitted_pay_method id='3'/></order_source>
<order_source input_source='4' delivery_type='2'><permitted_pay_method id='1'/></order_source></order_sources>
<discount_types><discount_type id='B'/><discount_type id='P'/></discount_types>
<currencies><currency id='EUR'/><currency id='CHF' factor='0.8'/></currencies>
<groups><group id='1'/><group id='4'/><group id='5'/></groups></orderingdetails>)"},
    {"currencies.xml", "<currencies><currency isocode='EUR'/><currency isocode='CHF'/></currencies>"},
    {"appearance.xml", "<appearance><defaultOrderSource inputSource='0' deliveryType='1'/></appearance>"},
    {"coupons/a.xml", R"(<terms><coupons><coupon type='value' price='-500' campaign_no='1'><condition art_id='101'/>
</coupon></coupons></terms>)"}};

void writeFile(const QString& theFile, const QString& theText)
{
    QFile file(theFile);
    require(file.open(QIODevice::WriteOnly), theFile);
    file.write(theText.toUtf8());
}

/// Letters are a matter of words, and whether their case can be meant is one of shops.
bool isOfShops(const QString& theRule)
{
    const QVector<VelAuditRule> rules = VelAuditRules::ofShops();
    return theRule == QLatin1String("lower-case-package") ||
           std::any_of(rules.begin(), rules.end(),
                       [&](const VelAuditRule& theOther) { return theRule == theOther.myName; });
}

/// The rules that speak of shops, each with what stands at its place: "duplicate-id 101; ...".
QString findingsOf(const QMap<QString, QString>& theShop)
{
    QTemporaryDir folder;
    QDir(folder.path()).mkdir("coupons");
    for (auto document = theShop.begin(); document != theShop.end(); ++document)
        writeFile(folder.filePath(document.key()), document.value());
    const VelAudit audit(QDir(folder.path()));
    QStringList found;
    for (const VelAuditFinding& finding : audit.findings())
        if (isOfShops(finding.myRule))
            found += finding.myRule + ' ' + audit.lineOf(finding).mid(finding.myPlace.myColumn - 1, finding.myLength);
    return found.join("; ");
}

} // namespace

class AuditOfShopsTest : public QObject
{
    Q_OBJECT

private slots:
    void changes_data()
    {
        readTable(R"(
change                 | was                                    | is                                            | found
nothing                | 101                                    | 101                                           |
equal totals           | price='45'                             | price='44'                                    |
offer that runs        | price='12'                             | price='12' non_offer_price='15' end_offer_date='2099-01-01T00:00:00' |
no level 0 below Z     | <price price='295'/>                   |                                               | no-plain-price 1
no level 0             | <price price='100'/>                   |                                               | no-plain-price 1
level 0 of -1          | price='100'                            | price='-1'                                    | no-plain-price -1
no inherited level 0   | <price type='I' price='150'/>          |                                               | no-plain-price 1
packages from 5 on     | quantity='1' price='500'               | quantity='5' price='500'                      | least-quantity 5
no price               | <price price='12'/>                    |                                               | no-price <article
no fee                 | <price price='490'/>                   |                                               | no-price <express_fee
shipping by products   | <price type='F' price='0'/>            | <price type='F'/>                             |
upside down            | quantity='10'                          | quantity='30'                                 | levels-not-rising 20; total-falls 94
from the first piece   | quantity='10'                          | quantity='1'                                  | levels-not-rising 1
inherited quantity     | quantity='5' price='140'               | price='140'                                   |
no quantity            | quantity='11'                          |                                               | level-without-quantity <price; levels-not-rising <price
gap                    | level='2' quantity='20'                | level='3' quantity='20'                       | level-skipped 3
gap behind a package   | level='3' quantity='21'                | level='4' quantity='21'                       | level-skipped 4
package at level 0     | type='P' level='1' quantity='1'        | type='P'                                      | level-never-asked <price; least-quantity 11
last package           | type='p'                               | type='P'                                      | package-without-end P; total-falls 45
first package          | type='P' level='1'                     | type='p' level='1'                            | lower-case-package p; total-falls 900
second package         | type='P' level='2'                     | type='p' level='2'                            | lower-case-package p; unit-price-rises 900; total-falls 45
overridden             | <price price='100'/>                   | <price price='100'/><price price='99'/>       | overridden-price <price
kiosk without on site  | price='12'                             | price='12' input_source='4'                   | price-not-on-offer 4
point of sale          | price='12'                             | price='12' delivery_type='0'                  | price-not-on-offer 0
offer over             | price='12'                             | price='12' non_offer_price='15' end_offer_date='2012-01-01T00:00:00' | offer-over 2012-01-01T00:00:00
offer too dear         | price='12'                             | price='12' non_offer_price='11' end_offer_date='2099-01-01T00:00:00' | offer-not-cheaper 12
no end                 | price='12'                             | price='12' non_offer_price='15'               | offer-without-end 15
no old price           | price='12'                             | price='12' end_offer_date='2099-01-01T00:00:00' | offer-without-old-price 2099-01-01T00:00:00
dearer with the level  | price='95'                             | price='105'                                   | unit-price-rises 105; total-falls 94
falling total          | price='95'                             | price='85'                                    | total-falls 85; unit-price-rises 94
dear package           | arrangement='trivial'><discount_prices> | arrangement='trivial'><base_prices><price price='48'/></base_prices><discount_prices> | dearer-model-wins 500
too large              | price='12'                             | price='21475'                                 | amount-too-large 21475
unknown calendar       | 8026                                   | 8027                                          | unknown-book 8027
unknown type           | TYPE=CAL6                              | TYPE=CAL99                                    | unknown-product-type TYPE=CAL99
no type                | <line>TYPE=CAL6</line>                 |                                               | unknown-product-type <order_txt_lines
no most pages          | max_pages='72'                         |                                               | pages-without-end 24
crossed pages          | max_pages='72'                         | max_pages='7'                                 | limits-crossed 7
no step                | page_step='8'                          |                                               | pages-without-step <article
crossed days           | days='3-5'                             | days='5-3'                                    | limits-crossed 5-3
same express class     | delivery_type='1' express='1'          | delivery_type='1' express='0'                 | duplicate-key 0; express-without-time 1
same number            | id='102'                               | id='101'                                      | duplicate-id 101
number of a fee        | id='11001'                             | id='101'                                      | duplicate-id 101
same transfer          | id='11004' group='4'                   | id='11004' group='1'                          | group-without-transfer 4; duplicate-fee 1
same payment fee       | pay_method_id='1'                      | pay_method_id='3'                             | payment-without-fee 1; duplicate-fee 3
unknown link           | linked_article id='9181'               | linked_article id='999'                       | broken-link 999
link to an add-on      | linked_article id='9181'               | linked_article id='5001'                      | broken-link 5001
unknown group          | id='101' group='1'                     | id='101' group='9'                            | unknown-group 9
no transfer            | id='11001' group='1'                   | id='11001' group='9'                          | group-without-transfer 1; unknown-group 9
shipping elsewhere     | <price price='295'/>                   | <price price='295' input_source='1'/>         | price-not-on-offer 1; no-plain-price 1
shipping by CD alone   | <price price='295'/><price type='Z' level='1' quantity='5000' | <price input_source='1' | shipping-without-price <transfer; price-not-on-offer 1
fee for no article     | id='13041' group='4'                   | id='13041' group='5'                          | fee-without-articles 5
other express class    | group='4' express='1'                  | group='4' express='2'                         | express-without-time 2
express for nothing    | price='490'                            | price='0'                                     | express-not-offered 0
unknown payment        | pay_method_id='1'                      | pay_method_id='2'                             | payment-without-fee 1; unknown-payment 2
kiosk without prices   | price='950' input_source='4'           | price='950' input_source='1'                  | order-way-without-prices 4; price-not-on-offer 1
other default          | inputSource='0'                        | inputSource='1'                               | default-order-way-not-offered 1
unknown currency       | id='EUR'                               | id='EURO'                                     | unknown-currency EURO
no factor              | factor='0.8'                           | factor='-1'                                   | impossible-factor -1
secondary first        | id='EUR'/><currency id='CHF' factor='0.8' | id='CHF' factor='0.8'/><currency id='EUR'  | currency-without-effect CHF
two primaries          | id='CHF' factor='0.8'                  | id='CHF'                                      | currency-without-effect EUR
same currency          | isocode='CHF'                          | isocode='EUR'                                 | duplicate-key EUR; unknown-currency CHF
same group             | <group id='4'/>                        | <group id='4'/><group id='1'/>                | duplicate-key 1
same order way         | input_source='4' delivery_type='2'><   | input_source='0' delivery_type='1'><          | duplicate-key 0; price-not-on-offer 4; price-not-on-offer 4
dear coupon            | price='-500'                           | price='500'                                   | coupon-adds 500
idle coupon            | price='-500'                           |                                               | coupon-without-effect <coupon
free shipping          | type='value' price='-500' campaign_no='1'><condition art_id='101' | type='quantity' campaign_no='1'><condition art_id='11001' |
nothing free           | type='value' price='-500'              | type='quantity'                               | coupon-without-effect <coupon
unknown in a coupon    | art_id='101'                           | art_id='13041'                                | unknown-coupon-article 13041)");
    }
    void changes()
    {
        QMap<QString, QString> shop = SOUND_SHOP;
        bool isChanged = false;
        for (QString& document : shop) {
            const int place = isChanged ? -1 : document.indexOf(cell("was"));
            if (place >= 0)
                document.replace(place, cell("was").size(), cell("is"));
            isChanged = isChanged || place >= 0;
        }
        QVERIFY2(isChanged, qPrintable(cell("was")));
        QCOMPARE(findingsOf(shop), cell("found"));
    }

    /// Nothing but what can't be helped is said of shops that may hold anything.
    void generatedShops()
    {
        for (unsigned seed = 1; seed <= 50; ++seed)
            findingsOf({{"pricelist.xml", NastyShop(seed).xml()}});
    }

    void sampleShops()
    {
        for (const char* shop : {"shop", "shop-small"}) {
            const VelAudit audit(QDir(QString(VELTARM_SOURCE_DIR "/%1").arg(shop)));
            for (const VelAuditFinding& finding : audit.findings())
                QVERIFY2(finding.mySeverity == SEVERITY_NOTE, qPrintable(finding.placeText() + finding.myMessage));
        }
    }
};

VEL_TEST_MAIN(AuditOfShopsTest)
#include "tst_AuditOfShops.moc"
