#include "frame/EnumHelper.h"
#include "frame/VelEnumFlags.h"
#include "support/VelTestMain.h"

#include <limits>

using namespace EnumHelper;

class TestEnumHelper : public QObject
{
    Q_OBJECT

private slots:
    void everyTableReadsAndWritesItsKeys();
    void unknownTextsAndValuesGiveTheDefaults();
    void decodingTrimsAndCombines();
    void discountModelsKeepBothCases();
    void paymentClassesCannotBeDecoded();
    void synonymsEncodeToTheSmallestKey();
    void productTypesAreComplete();
    void productTypeFamilies_data();
    void productTypeFamilies();
    void flagsSplitIntoBits();
    void bitKeysAreJoined();
};

namespace {

/// The rows are written key=value.
template <typename Enum>
void verifyBothWays(Enum (*theDecode)(const QString&), QString (*theEncode)(Enum), const char* theRows)
{
    for (const QString& row : QString::fromLatin1(theRows).split(QLatin1Char(' '))) {
        const QString key = row.section(QLatin1Char('='), 0, 0);
        const int value = row.section(QLatin1Char('='), 1).toInt();
        QCOMPARE(int(theDecode(key)), value);
        QCOMPARE(theEncode(static_cast<Enum>(value)), key.toUpper());
    }
}

template <typename Enum>
void verifyUnknown(Enum (*theDecode)(const QString&), QString (*theEncode)(Enum), int theDefaultValue,
                   const char* theDefaultKey)
{
    QCOMPARE(int(theDecode(QStringLiteral("no such word"))), theDefaultValue);
    QCOMPARE(theEncode(static_cast<Enum>(77777)), QString::fromLatin1(theDefaultKey));
}

} // namespace

void TestEnumHelper::everyTableReadsAndWritesItsKeys()
{
    verifyBothWays(decodeDiscountModel, encodeDiscountModel, "B=1 L=2 P=3 F=4 Z=5 X=7 I=8");
    verifyBothWays(decodeTransferModel, encodeTransferModel, "-1=-1 1=1 2=2");
    verifyBothWays(decodePaymentType, encodePaymentType, "-1=-1 0=0 1=1 2=2 3=3 5=5 8=8 9=9 10=10 12=12 14=14 15=15");
    verifyBothWays(decodeInputSource, encodeInputSource, "=-1 0=0 1=1 4=4");
    verifyBothWays(decodeDeliveryType, encodeDeliveryType, "=-1 0=0 1=1 2=2");
    verifyBothWays(decodeExpressTypeEnum, encodeExpressTypeEnum, "=0 0=1 1=2 2=3");
    verifyBothWays(decodeConnectStrategy, encodeConnectStrategy, "default=0 t-online-sam=1 bol=2");
    verifyBothWays(decodeForgottenPasswordStrategy, encodeForgottenPasswordStrategy,
                   "default=0 send_email=1 goto_url=2 just_press_button=3 contact_email=4 none=5 singleuse=6");
    verifyBothWays(decodeProductGroupEnum, encodeProductGroupEnum, "foto=1 zqnfoto=256 professionalfoto=512");
    verifyBothWays(decodeProductArrangement, encodeProductArrangement,
                   "trivial=1 gift=4 card=8 photobook=16 calendar=32");
    verifyBothWays(decodeOrderWay, encodeOrderWay, "cd=1 net=2 both=3");
    verifyBothWays(decodeStoreMagnitude, encodeStoreMagnitude, "one=1 few=2 many=3");
    verifyBothWays(decodeImageExportTypeEnum, encodeImageExportTypeEnum,
                   "IMAGE_EXPORT_UNKOWN=0 locr=1 toi=2 gallery=4");
    verifyBothWays(decodeCouponType, encodeCouponType, "value=1 percent=2 quantity=3");
}

void TestEnumHelper::unknownTextsAndValuesGiveTheDefaults()
{
    verifyUnknown(decodeDiscountModel, encodeDiscountModel, 9, "DISCOUNT_MODEL_FUTURE_EXTENSION");
    verifyUnknown(decodeTransferModel, encodeTransferModel, -1, "-1");
    verifyUnknown(decodePaymentClass, encodePaymentClass, 0, "pay_methods");
    verifyUnknown(decodePaymentType, encodePaymentType, -1, "-1");
    verifyUnknown(decodeInputSource, encodeInputSource, -2, "INPUT_SOURCE_UNKNOWN");
    verifyUnknown(decodeDeliveryType, encodeDeliveryType, -2, "DELIVERY_TYPE_UNKNOWN");
    verifyUnknown(decodeExpressTypeEnum, encodeExpressTypeEnum, 0, "ExpressableType_UNKNOWN");
    verifyUnknown(decodeConnectStrategy, encodeConnectStrategy, 0, "default");
    verifyUnknown(decodeForgottenPasswordStrategy, encodeForgottenPasswordStrategy, 0, "default");
    verifyUnknown(decodeProductGroupEnum, encodeProductGroupEnum, 0, "unknown");
    verifyUnknown(decodeProductArrangement, encodeProductArrangement, 0, "unbekanntes Arrangement");
    verifyUnknown(decodeOrderWay, encodeOrderWay, 3, "both");
    verifyUnknown(decodeStoreMagnitude, encodeStoreMagnitude, 3, "many");
    verifyUnknown(decodeImageExportTypeEnum, encodeImageExportTypeEnum, 0, "IMAGE_EXPORT_UNKOWN");
    verifyUnknown(decodeProductTypeEnum, encodeProductTypeEnum, 0, "nicht benannter Typ");
    verifyUnknown(decodeCouponType, encodeCouponType, 0, "unbenannter Gutschein");

    QCOMPARE(int(decodeDiscountModel(QString())), 9);
    QCOMPARE(int(decodeInputSource(QString())), -1);
    QCOMPARE(encodeInputSource(static_cast<VelInputSource>(3)), QStringLiteral("INPUT_SOURCE_UNKNOWN"));
    for (const int model : {0, 6, 9, 10}) // none of these has a key
        QCOMPARE(encodeDiscountModel(static_cast<VelDiscountModel>(model)),
                 QStringLiteral("DISCOUNT_MODEL_FUTURE_EXTENSION"));
}

void TestEnumHelper::decodingTrimsAndCombines()
{
    QCOMPARE(int(decodeDiscountModel(QStringLiteral(" b\t"))), 1);
    QCOMPARE(int(decodeDiscountModel(QStringLiteral("B, l"))), 3);
    QCOMPARE(int(decodeDiscountModel(QStringLiteral("Q,B"))), 9);
    QCOMPARE(int(decodeDiscountModel(QStringLiteral("B,"))), 9);
    QCOMPARE(int(decodeDiscountModel(QStringLiteral("B L"))), 9);
    QCOMPARE(int(decodeDiscountModel(QStringLiteral("B;L"))), 9);
    QCOMPARE(int(decodeInputSource(QStringLiteral("0,1"))), 1);
    QCOMPARE(int(decodeInputSource(QStringLiteral("X,1"))), -1);
    QCOMPARE(int(decodeInputSource(QStringLiteral("4,"))), -1);
    QCOMPARE(int(decodeInputSource(QStringLiteral("  "))), -1);
    QCOMPARE(int(decodeExpressTypeEnum(QStringLiteral("1,2"))), 3);
    QCOMPARE(int(decodeProductArrangement(QStringLiteral("Gift ,cArD"))), 12);
    QCOMPARE(int(decodePaymentType(QStringLiteral("03"))), -1);
}

void TestEnumHelper::discountModelsKeepBothCases()
{
    QStringList keys = globalMapDiscountModelString.keys();
    keys.sort();
    QCOMPARE(keys.join(QString()), QStringLiteral("BFILPXZbflpxz"));
    QCOMPARE(int(decodeDiscountModel(QStringLiteral("i"))), 8); // upper-cased first, so it needs no twin
}

void TestEnumHelper::paymentClassesCannotBeDecoded()
{
    QCOMPARE(encodePaymentClass(PAYMENT_CLASS_PAY_METHODS), QStringLiteral("pay_methods"));
    QCOMPARE(encodePaymentClass(PAYMENT_CLASS_CREDIT_CARDS), QStringLiteral("credit_cards"));
    QCOMPARE(encodePaymentClass(PAYMENT_CLASS_ONLINE_TRANSFER_METHODS), QStringLiteral("online_transfer_methods"));
    QCOMPARE(int(decodePaymentClass(QStringLiteral("credit_cards"))), 0);
}

void TestEnumHelper::synonymsEncodeToTheSmallestKey()
{
    const QList<QPair<int, QString>> rows = {
        {2, QStringLiteral("premiumfoto,product_foto")}, {4, QStringLiteral("poster,product_poster")},
        {8, QStringLiteral("book,product_fotobook")},    {16, QStringLiteral("calendar,printfun,product_calendar")},
        {32, QStringLiteral("fun,gift,product_gift")},
    };
    for (const auto& row : rows) {
        const QStringList keys = row.second.split(QLatin1Char(','));
        for (const QString& key : keys)
            QCOMPARE(int(decodeProductGroupEnum(key)), row.first);
        QCOMPARE(encodeProductGroupEnum(static_cast<VelProductGroupEnum>(row.first)), keys.first().toUpper());
    }
    QCOMPARE(encodeProductGroupEnum(PRODUCT_GROUP_ADD_ON), QStringLiteral("unknown"));
    QCOMPARE(encodeProductTypeEnum(PRODUCT_TYPE_GROUP_407), QStringLiteral("100X100AGP"));
}

void TestEnumHelper::productTypesAreComplete()
{
    QCOMPARE(globalMapProductTypeEnumString.size(), 237);
    QHash<int, int> keysOfValue;
    for (const VelProductTypeEnum value : globalMapProductTypeEnumString)
        ++keysOfValue[value];
    QCOMPARE(keysOfValue.size(), 42 + 23 + 11);
    const QList<int> sizes = {17, 4, 4, 2, 28, 28, 20, 8, 5, 28, 28};
    for (int i = 0; i < sizes.size(); ++i)
        QCOMPARE(keysOfValue.value(402 + i), sizes.at(i));
}

void TestEnumHelper::productTypeFamilies_data()
{
    QTest::addColumn<QString>("keys");
    QTest::addColumn<int>("value");
    const auto row = [](const char* theKeys, int theValue) {
        QTest::newRow(theKeys) << QString::fromLatin1(theKeys) << theValue;
    };
    row("ALB6 alb6", 6);
    row("ALB19", 19);
    row("ALB46", 46);
    row("ALB77", 77);
    row("ALB80", 78);
    row("ALB81", 79);
    row("CAL6", 106);
    row("CAL13", 113);
    row("CAL28", 114);
    row("CAL18", 115);
    row("CAL20", 116);
    row("CAL21", 117);
    row("CAL29", 118);
    row("CAL36", 122);
    row("CAL19", 123);
    row("CAL41", 124);
    row("CAL44", 127);
    row("CAL37", 128);
    row("PSC101 PSC105 PSC107 PSC112 PSC116 PSC121", 402);
    row("20x30AG 30X45AG 50x75ag", 403);
    row("20x30AD 40x60AD", 404);
    row("10x15AGP 13x18AGP", 405);
    row("20x30ADP 40x120ADP 100x150ADP", 406);
    row("20x30AGP 30x30AGP 70x100AGP 100x150AGP", 407);
    row("LFP101 LFP115 LFP118 LFP137", 408);
    row("LFP103 LFP125 LFP136", 409);
    row("LFP102 LFP116 LFP129", 410);
    row("20x30GAP 100x150GAP", 411);
    row("20x30FSP 30x40FSP 30x45FSP 40x60FSP 45x60FSP 50x75FSP 60x80FSP 60x90FSP 80x120FSP 90x120FSP 100x150FSP "
        "30x30FSP 40x40FSP 50x50FSP 60x60FSP 70x70FSP 80x80FSP 90x90FSP 100x100FSP 40x50FSP 50x60FSP 50x70FSP "
        "70x100FSP 80x100FSP 20x60FSP 30x90FSP 40x120FSP 50x150FSP",
        412);
    row("ALB12 ALB20 ALB78 ALB79 CAL14 CAL106 PSC106 LFP121 10x15ADP 13x18 15x20AGP 402", 0);
}

void TestEnumHelper::productTypeFamilies()
{
    QFETCH(QString, keys);
    QFETCH(int, value);
    for (const QString& key : keys.split(QLatin1Char(' ')))
        QCOMPARE(int(decodeProductTypeEnum(key)), value);
}

void TestEnumHelper::flagsSplitIntoBits()
{
    const auto bits = [](int theFlags) {
        QList<int> result;
        for (const VelProductGroupEnum bit : splitEnumType(static_cast<VelProductGroupEnum>(theFlags)))
            result.append(bit);
        return result;
    };
    QCOMPARE(bits(PRODUCT_GROUP_ALL), (QList<int>{1, 2, 4, 8, 16, 32, 64, 256, 512}));
    QCOMPARE(bits(40), (QList<int>{8, 32}));
    QCOMPARE(bits(0), QList<int>());
    QCOMPARE(bits(-1), QList<int>());
    QCOMPARE(bits(std::numeric_limits<int>::min()), QList<int>());
    QCOMPARE(bits(1 << 30), QList<int>{1 << 30});
    QCOMPARE(bits(std::numeric_limits<int>::max()).size(), 31);
}

void TestEnumHelper::bitKeysAreJoined()
{
    const auto names = [](int theFlags) {
        return joinedBitKeys(globalMapProductGroupEnumString, static_cast<VelProductGroupEnum>(theFlags));
    };
    QCOMPARE(names(PRODUCT_GROUP_ALL),
             QStringLiteral("FOTO,PREMIUMFOTO,POSTER,BOOK,CALENDAR,FUN,ZQNFOTO,PROFESSIONALFOTO"));
    QCOMPARE(names(PRODUCT_GROUP_ADD_ON), QString()); // a bit without a key
    QCOMPARE(names(0), QString());
    // 3 stands in this table as a value of its own, and is none of the single bits.
    QCOMPARE(joinedBitKeys(globalMapOrderWayString, ORDER_WAY_BOTH), QStringLiteral("CD,NET"));
}

VEL_TEST_MAIN(TestEnumHelper)
#include "tst_EnumHelper.moc"
