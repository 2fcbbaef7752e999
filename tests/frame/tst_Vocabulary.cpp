#include "frame/EnumHelper.h"
#include "frame/VelEnumFlags.h"
#include "frame/VelExpressType.h"
#include "frame/VelLookUpTable.h"
#include "frame/VelOrderSource.h"
#include "support/VelTestMain.h"

using namespace EnumHelper;

namespace {

/// The pairs key=value must hold in both directions, where the first of several keys comes back; the rest is what
/// unknown ones give.
template <typename Enum>
void verifyTable(Enum (*theDecode)(const QString&), QString (*theEncode)(Enum), int theUnknownValue,
                 const char* theUnknownKey, const char* thePairs)
{
    QMap<int, QString> keys;
    for (const QString& pair : QString::fromLatin1(thePairs).simplified().split(' ')) {
        const QString key = pair.section('=', 0, 0);
        const int value = pair.section('=', 1).toInt();
        keys.insert(value, keys.value(value, key.toUpper()));
        QCOMPARE(int(theDecode(key)), value);
        QCOMPARE(theEncode(static_cast<Enum>(value)), keys.value(value));
    }
    QCOMPARE(int(theDecode("no such word")), theUnknownValue);
    QCOMPARE(theEncode(static_cast<Enum>(77777)), theUnknownKey);
}
#define VERIFY_TABLE(Name, ...) verifyTable(decode##Name, encode##Name, __VA_ARGS__)

} // namespace

/// The enumerations with their texts, and the small values on top of them: order source and express type.
class VocabularyTest : public QObject
{
    Q_OBJECT

private slots:
    void everyTableReadsAndWritesItsKeys()
    {
        VERIFY_TABLE(ConnectStrategy, 0, "default", "default=0 t-online-sam=1 bol=2");
        VERIFY_TABLE(DeliveryType, -2, "DELIVERY_TYPE_UNKNOWN", "=-1 0=0 1=1 2=2");
        VERIFY_TABLE(DiscountModel, 9, "DISCOUNT_MODEL_FUTURE_EXTENSION", "B=1 b=1 L=2 P=3 F=4 Z=5 X=7 I=8 i=8");
        VERIFY_TABLE(ExpressTypeEnum, 0, "ExpressableType_UNKNOWN", "=0 0=1 1=2 2=3");
        VERIFY_TABLE(ForgottenPasswordStrategy, 0, "default",
                     "default=0 send_email=1 goto_url=2 just_press_button=3 contact_email=4 none=5 singleuse=6");
        VERIFY_TABLE(ImageExportTypeEnum, 0, "IMAGE_EXPORT_UNKOWN", "IMAGE_EXPORT_UNKOWN=0 locr=1 toi=2 gallery=4");
        VERIFY_TABLE(InputSource, -2, "INPUT_SOURCE_UNKNOWN", "=-1 0=0 1=1 4=4");
        VERIFY_TABLE(OrderWay, 3, "both", "cd=1 net=2 both=3");
        VERIFY_TABLE(PaymentType, -1, "-1", "-1=-1 0=0 1=1 2=2 3=3 5=5 8=8 9=9 10=10 12=12 14=14 15=15");
        VERIFY_TABLE(ProductArrangement, 0, "unbekanntes Arrangement", "trivial=1 gift=4 card=8 photobook=16");
        VERIFY_TABLE(ProductGroupEnum, 0, "unknown", R"(
            foto=1 premiumfoto=2 product_foto=2 poster=4 product_poster=4 book=8 product_fotobook=8 calendar=16
            printfun=16 product_calendar=16 fun=32 gift=32 product_gift=32 zqnfoto=256 professionalfoto=512)");
        VERIFY_TABLE(ProductTypeEnum, 0, "nicht benannter Typ", R"(
            ALB6=6 ALB19=19 ALB28=28 ALB46=46 ALB62=62 ALB77=77 ALB80=78 ALB81=79 CAL6=106 CAL13=113 CAL28=114 CAL18=115
            CAL20=116 CAL21=117 CAL29=118 CAL36=122 CAL19=123 CAL41=124 CAL44=127 CAL37=128 PSC101=402 PSC121=402
            20x30AG=403 20x30AD=404 10x15AGP=405 13x18AGP=405 100x100ADP=406 40x120ADP=406 100x100AGP=407 20x30AGP=407
            LFP101=408 LFP137=408 LFP103=409 LFP136=409 LFP102=410 LFP129=410 100x100GAP=411 100x100FSP=412)");
        VERIFY_TABLE(StoreMagnitude, 3, "many", "one=1 few=2 many=3");
        VERIFY_TABLE(TransferModel, -1, "-1", "-1=-1 1=1 2=2");
    }

    void productTypesAreComplete()
    {
        QMap<int, int> keysOfValue;
        for (const VelProductTypeEnum value : globalMapProductTypeEnumString)
            ++keysOfValue[value];
        QCOMPARE(keysOfValue.size(), 42 + 23 + 11);
        QCOMPARE(keysOfValue.values().mid(42 + 23), (QList<int>{17, 4, 4, 2, 28, 28, 20, 8, 5, 28, 28}));
    }

    /// Texts are cut at commas, trimmed, and their values combined as bits.
    void oddTextsAndTables()
    {
        QCOMPARE(decodeDiscountModel(" b\t"), DISCOUNT_MODEL_BULK);
        QCOMPARE(decodeDiscountModel("B, l"), DISCOUNT_MODEL_PACKAGE);
        QCOMPARE(decodeInputSource("X,1"), INPUT_SOURCE_ANY);
        for (const QString& unknown : {QString(), QString("B,"), QString("B;L")})
            QCOMPARE(decodeDiscountModel(unknown), DISCOUNT_MODEL_FUTURE_EXTENSION);

        QStringList keys = globalMapDiscountModelString.keys();
        keys.sort();
        QCOMPARE(keys.join(QString()), "BFILPXZbflpxz");
        QCOMPARE(encodePaymentClass(PAYMENT_CLASS_CREDIT_CARDS), "credit_cards");
        QCOMPARE(decodePaymentClass("credit_cards"), PAYMENT_CLASS_PAY_METHODS); // no text meets a key in lower case
    }

    void flagsSplitIntoBits()
    {
        QCOMPARE(splitEnumType(int(PRODUCT_GROUP_ALL)), (QList<int>{1, 2, 4, 8, 16, 32, 64, 256, 512}));
        QCOMPARE(splitEnumType(0) + splitEnumType(-1), QList<int>());
        QCOMPARE(splitEnumType(std::numeric_limits<int>::max()).size(), 31);
    }

    void orderSource_data()
    {
        readTable(R"(
            row                   | attributes                           | valid | squish
            delivery type only    | input_source='' delivery_type='1'    | yes   | _1
            kiosk on site         | input_source='4' delivery_type='2'   | yes   | 4_2
            kiosk anywhere        | input_source='4'                     | no    | 4_
            net on site           | input_source='0' delivery_type='2'   | no    | 0_2
            unknown input source  | input_source='2' delivery_type='1'   | no    | INPUT_SOURCE_UNKNOWN_1
            unknown delivery type | input_source='1' delivery_type='pos' | no    | 1_DELIVERY_TYPE_UNKNOWN
        )");
    }

    void orderSource()
    {
        const VelOrderSource source(parsedElement(QStringLiteral("<e %1/>").arg(cell("attributes"))));
        QCOMPARE(source.isValid(), answer("valid"));
        QCOMPARE(source.toSquishString(), cell("squish"));
    }

    void namedPairsInOrder()
    {
        const QList<VelOrderSource> rising = {{INPUT_SOURCE_UNKNOWN, DELIVERY_TYPE_ON_SITE},
                                              VelOrderSource::onlinePointOfSale(),
                                              VelOrderSource::onlineMailOrder(),
                                              VelOrderSource::cdPointOfSale(),
                                              VelOrderSource::cdMailOrder(),
                                              VelOrderSource::kioskOnSite()};
        for (int i = 0; i < rising.size(); ++i) {
            const VelOrderSource& source = rising.at(i);
            const QList<bool> kinds = {source.isOnlinePointOfSale(), source.isOnlineMailOrder(),
                                       source.isCDPointOfSale(), source.isCDMailOrder(), source.isKioskOnSite()};
            QCOMPARE(kinds, (QList<bool>{i == 1, i == 2, i == 3, i == 4, i == 5}));
            for (int j = 0; j < rising.size(); ++j) {
                QCOMPARE(source < rising.at(j), i < j);
                QCOMPARE(source == rising.at(j), i == j);
            }
        }
        QString text;
        QDebug(&text) << rising.last() << VelOrderSource(INPUT_SOURCE_ANY, DELIVERY_TYPE_ANY);
        QCOMPARE(text, "INPUT_SOURCE_KIOSK   DELIVERY_TYPE_ON_SITE INPUT_SOURCE_UNKNOWN   DELIVERY_TYPE_UNKNOWN ");
    }

    /// Only the two named values come back from their names: the express classes answer the default, which is no name.
    void expressTypes()
    {
        const QStringList names{"unbekannter Expresstyp", "Standardproduktion und Standardversand", "Undefiniert"};
        for (int value = 0; value < names.size(); ++value) {
            const VelExpressType type(static_cast<VelExpressTypeEnum>(value));
            QCOMPARE(type.isValid(), value != 0);
            QCOMPARE(type.humanReadableName(), names.at(value));
            QCOMPARE(int(VelExpressType::createFromHumanReadable(names.at(value)).value()), value == 1 ? 1 : 0);
        }
    }

    void nameTable()
    {
        const std::unique_ptr<VelLookUpTable<VelExpressTypeEnum, QString>> names(VelExpressType::initNames());
        names->insert(ExpressableType_EXPRESS_2, "schnell");
        names->insert(ExpressableType_EXPRESS_1, "schnell");
        QCOMPARE(names->findByValue("schnell"), ExpressableType_EXPRESS_1);     // the lowest key
        QVERIFY(!VelExpressType::createFromHumanReadable("schnell").isValid()); // that table was a new one
    }
};

VEL_TEST_MAIN(VocabularyTest)
#include "tst_Vocabulary.moc"
