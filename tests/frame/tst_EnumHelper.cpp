#include "frame/EnumHelper.h"
#include "frame/VelEnumFlags.h"
#include "support/VelTestMain.h"

using namespace EnumHelper;

namespace {

/// The rows are written key=value and must hold in both directions; the rest is what unknown ones give.
template <typename Enum>
void verifyTable(Enum (*theDecode)(const QString&), QString (*theEncode)(Enum), const char* theRows,
                 int theUnknownValue, const char* theUnknownKey)
{
    for (const QString& row : QString::fromLatin1(theRows).split(' ')) {
        const QString key = row.section('=', 0, 0);
        const int value = row.section('=', 1).toInt();
        QCOMPARE(int(theDecode(key)), value);
        QCOMPARE(theEncode(static_cast<Enum>(value)), key.toUpper());
    }
    QCOMPARE(int(theDecode("no such word")), theUnknownValue);
    QCOMPARE(theEncode(static_cast<Enum>(77777)), theUnknownKey);
}

/// The different values of keys.
template <typename Enum>
QString decoded(Enum (*theDecode)(const QString&), const QStringList& theKeys)
{
    QStringList values;
    for (const QString& key : theKeys)
        values.append(QString::number(theDecode(key)));
    values.removeDuplicates();
    return values.join(' ');
}

QString productTypes(const char* theKeys)
{
    return decoded(decodeProductTypeEnum, QString(theKeys).simplified().split(' '));
}

} // namespace

class TestEnumHelper : public QObject
{
    Q_OBJECT

private slots:
    void everyTableReadsAndWritesItsKeys()
    {
        verifyTable(decodeDiscountModel, encodeDiscountModel, "B=1 L=2 P=3 F=4 Z=5 X=7 I=8", 9,
                    "DISCOUNT_MODEL_FUTURE_EXTENSION");
        verifyTable(decodeTransferModel, encodeTransferModel, "-1=-1 1=1 2=2", -1, "-1");
        verifyTable(decodePaymentType, encodePaymentType, "-1=-1 0=0 1=1 2=2 3=3 5=5 8=8 9=9 10=10 12=12 14=14 15=15",
                    -1, "-1");
        verifyTable(decodeInputSource, encodeInputSource, "=-1 0=0 1=1 4=4", -2, "INPUT_SOURCE_UNKNOWN");
        verifyTable(decodeDeliveryType, encodeDeliveryType, "=-1 0=0 1=1 2=2", -2, "DELIVERY_TYPE_UNKNOWN");
        verifyTable(decodeExpressTypeEnum, encodeExpressTypeEnum, "=0 0=1 1=2 2=3", 0, "ExpressableType_UNKNOWN");
        verifyTable(decodeConnectStrategy, encodeConnectStrategy, "default=0 t-online-sam=1 bol=2", 0, "default");
        verifyTable(decodeForgottenPasswordStrategy, encodeForgottenPasswordStrategy,
                    "default=0 send_email=1 goto_url=2 just_press_button=3 contact_email=4 none=5 singleuse=6", 0,
                    "default");
        verifyTable(decodeProductGroupEnum, encodeProductGroupEnum, "foto=1 zqnfoto=256 professionalfoto=512", 0,
                    "unknown");
        verifyTable(decodeProductArrangement, encodeProductArrangement,
                    "trivial=1 gift=4 card=8 photobook=16 calendar=32", 0, "unbekanntes Arrangement");
        verifyTable(decodeOrderWay, encodeOrderWay, "cd=1 net=2 both=3", 3, "both");
        verifyTable(decodeStoreMagnitude, encodeStoreMagnitude, "one=1 few=2 many=3", 3, "many");
        verifyTable(decodeImageExportTypeEnum, encodeImageExportTypeEnum,
                    "IMAGE_EXPORT_UNKOWN=0 locr=1 toi=2 gallery=4", 0, "IMAGE_EXPORT_UNKOWN");
        verifyTable(decodeCouponType, encodeCouponType, "value=1 percent=2 quantity=3", 0, "unbenannter Gutschein");
        verifyTable(decodeProductTypeEnum, encodeProductTypeEnum, "ALB6=6", 0, "nicht benannter Typ");
    }

    /// A known value whose number has no key, and texts that are cut at commas.
    void oddTextsAndValues()
    {
        QCOMPARE(encodeInputSource(static_cast<VelInputSource>(3)), "INPUT_SOURCE_UNKNOWN");
        for (const int model : {0, 6, 9, 10})
            QCOMPARE(encodeDiscountModel(static_cast<VelDiscountModel>(model)), "DISCOUNT_MODEL_FUTURE_EXTENSION");
        QCOMPARE(decoded(decodeDiscountModel, {" b\t"}), "1");
        QCOMPARE(decoded(decodeDiscountModel, {"B, l"}), "3");
        QCOMPARE(decoded(decodeDiscountModel, {QString(), "Q,B", "B,", "B L", "B;L"}), "9");
        QCOMPARE(decoded(decodeInputSource, {"0,1"}), "1");
        QCOMPARE(decoded(decodeInputSource, {QString(), "X,1", "4,", "  "}), "-1");
        QCOMPARE(decoded(decodeExpressTypeEnum, {"1,2"}), "3");
        QCOMPARE(decoded(decodeProductArrangement, {"Gift ,cArD"}), "12");
        QCOMPARE(decoded(decodePaymentType, {"03"}), "-1");
    }

    void discountModelsKeepBothCases()
    {
        QStringList keys = globalMapDiscountModelString.keys();
        keys.sort();
        QCOMPARE(keys.join(QString()), "BFILPXZbflpxz");
        QCOMPARE(decoded(decodeDiscountModel, {"i"}), "8"); // upper-cased first, so it needs no twin
    }

    void paymentClassesCannotBeDecoded()
    {
        QCOMPARE(encodePaymentClass(PAYMENT_CLASS_CREDIT_CARDS), "credit_cards");
        QCOMPARE(encodePaymentClass(PAYMENT_CLASS_ONLINE_TRANSFER_METHODS), "online_transfer_methods");
        QCOMPARE(encodePaymentClass(static_cast<VelPaymentClass>(77777)), "pay_methods");
        QCOMPARE(decoded(decodePaymentClass, {"credit_cards", "no such word"}), "0");
    }

    void synonymsEncodeToTheSmallestKey_data()
    {
        readTable(R"(
            value | keys
            2     | premiumfoto,product_foto
            4     | poster,product_poster
            8     | book,product_fotobook
            16    | calendar,printfun,product_calendar
            32    | fun,gift,product_gift
        )");
    }

    void synonymsEncodeToTheSmallestKey()
    {
        const QStringList keys = cell("keys").split(',');
        QCOMPARE(decoded(decodeProductGroupEnum, keys), cell("value"));
        QCOMPARE(encodeProductGroupEnum(static_cast<VelProductGroupEnum>(number("value"))), keys.first().toUpper());
        QCOMPARE(encodeProductGroupEnum(PRODUCT_GROUP_ADD_ON), "unknown"); // the one group without a key
        QCOMPARE(encodeProductTypeEnum(PRODUCT_TYPE_GROUP_407), "100X100AGP");
    }

    void productTypesAreComplete()
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

    void productTypeFamilies()
    {
        QCOMPARE(productTypes("ALB6 alb6 ALB19 ALB46 ALB77 ALB80 ALB81"), "6 19 46 77 78 79");
        QCOMPARE(productTypes("CAL6 CAL13 CAL28 CAL18 CAL20 CAL21 CAL29 CAL36 CAL19 CAL41 CAL44 CAL37"),
                 "106 113 114 115 116 117 118 122 123 124 127 128");
        QCOMPARE(productTypes("PSC101 PSC105 PSC107 PSC112 PSC116 PSC121"), "402");
        QCOMPARE(productTypes("20x30AG 30X45AG 50x75ag 20x30AD 40x60AD 10x15AGP 13x18AGP"), "403 404 405");
        QCOMPARE(productTypes("20x30ADP 40x120ADP 100x150ADP 20x30AGP 30x30AGP 70x100AGP 100x150AGP"), "406 407");
        QCOMPARE(productTypes("LFP101 LFP115 LFP118 LFP137 LFP103 LFP125 LFP136 LFP102 LFP116 LFP129"), "408 409 410");
        QCOMPARE(productTypes("20x30GAP 100x150GAP"), "411");
        QCOMPARE(productTypes(R"(20x30FSP 30x40FSP 30x45FSP 40x60FSP 45x60FSP 50x75FSP 60x80FSP 60x90FSP 80x120FSP
                                 90x120FSP 100x150FSP 30x30FSP 40x40FSP 50x50FSP 60x60FSP 70x70FSP 80x80FSP 90x90FSP
                                 100x100FSP 40x50FSP 50x60FSP 50x70FSP 70x100FSP 80x100FSP 20x60FSP 30x90FSP 40x120FSP
                                 50x150FSP)"),
                 "412");
        QCOMPARE(productTypes("ALB12 ALB20 ALB78 ALB79 CAL14 CAL106 PSC106 LFP121 10x15ADP 13x18 15x20AGP 402"), "0");
    }

    void flagsSplitIntoBits()
    {
        QCOMPARE(splitEnumType(int(PRODUCT_GROUP_ALL)), (QList<int>{1, 2, 4, 8, 16, 32, 64, 256, 512}));
        QCOMPARE(splitEnumType(0) + splitEnumType(-1), QList<int>());
        QCOMPARE(splitEnumType(1 << 30), QList<int>{1 << 30});
        QCOMPARE(splitEnumType(std::numeric_limits<int>::max()).size(), 31);
    }

    void bitKeysAreJoined()
    {
        QCOMPARE(joinedBitKeys(globalMapProductGroupEnumString, PRODUCT_GROUP_ALL), // 64 has no key
                 "FOTO,PREMIUMFOTO,POSTER,BOOK,CALENDAR,FUN,ZQNFOTO,PROFESSIONALFOTO");
        // 3 stands in this table as a value of its own, and is none of the single bits.
        QCOMPARE(joinedBitKeys(globalMapOrderWayString, ORDER_WAY_BOTH), "CD,NET");
    }
};

VEL_TEST_MAIN(TestEnumHelper)
#include "tst_EnumHelper.moc"
