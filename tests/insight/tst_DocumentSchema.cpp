#include "insight/VelDocumentSchema.h"
#include "support/VelTestAccount.h"
#include "support/VelTestDocuments.h"

using Document = VelDocumentDescription;

class DocumentSchemaTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        for (const Document* document : Document::all())
            myFolder.write(VelDocumentSchema::fileName(*document), VelDocumentSchema::of(*document));
    }

    void sampleShops_data()
    {
        QTest::addColumn<QString>("schema");
        QTest::addColumn<QString>("file");
        for (const QString& shop : QStringList{"shop/", "shop-small/"})
            for (const Document* document : Document::all()) {
                const QFileInfo pattern(VELTARM_SOURCE_DIR "/" + shop + document->file());
                for (const QFileInfo& file : pattern.dir().entryInfoList({pattern.fileName()}))
                    QTest::newRow(qPrintable(shop + file.fileName())) << document->name() << file.filePath();
            }
    }

    void sampleShops()
    {
        QFETCH(QString, schema);
        QFETCH(QString, file);
        QCOMPARE(complaints(schema, file), QString());
    }

    /// All that is described may be written, each word too.
    void fullDocuments()
    {
        for (const Document* document : Document::all()) {
            const QFileInfo file = myFolder.write("full.xml", FullDocument(*document, false).bytes());
            QCOMPARE(complaints(document->name(), file.filePath()), QString());
        }
    }

    void fragments_data()
    {
        readTable(R"(
            name                     | schema          | complaint        | document
            any order                | pricelist       |                  | <pricelist><transfers/><articles/></pricelist>
            section misspelt         | pricelist       | 'artikles'       | <pricelist><artikles/></pricelist>
            section twice            | pricelist       | 'transfers'      | <pricelist><transfers/><transfers/></pricelist>
            wrong place              | pricelist       | 'add_on'         | <pricelist><articles><add_on/></articles></pricelist>
            text                     | pricelist       | content          | <pricelist>x</pricelist>
            word in any case         | coupon          |                  | <coupon_terms><coupons><coupon type=" Value" campaign_no=""/></coupons></coupon_terms>
            two words                | coupon          | 'type'           | <coupon_terms><coupons><coupon type="value,percent" campaign_no=""/></coupons></coupon_terms>
            missing                  | coupon          | 'campaign_no'    | <coupon_terms><coupons><coupon type="value"/></coupons></coupon_terms>
            out of range             | coupon          | '5000'           | <coupon_terms><coupons><coupon type="value" campaign_no="" price="5000"/></coupons></coupon_terms>
            others' settings         | appearance      |                  | <appearance a="1"><font size="2"/><defaultOrderSource inputSource="4" deliveryType="2"/></appearance>
            number of no word        | appearance      | 'inputSource'    | <appearance><defaultOrderSource inputSource="3" deliveryType="2"/></appearance>
            attribute misspelt       | payment-icons   | 'icno'           | <payment><method name="a" icno="b"/></payment>
            bool in any case         | currencies      |                  | <currencies><currency isocode="EUR"><symbolinfront>TRUE</symbolinfront></currency></currencies>
            no bool                  | currencies      | 'yes'            | <currencies><currency isocode="EUR"><symbolinfront>yes</symbolinfront></currency></currencies>
            comma                    | currencies      | '2,0'            | <currencies><currency isocode="EUR"><decimalplaces>2,0</decimalplaces></currency></currencies>
        )");
    }

    void fragments()
    {
        const QFileInfo file = myFolder.write("fragment.xml", cell("document").toUtf8());
        const QString found = complaints(cell("schema"), file.filePath());
        QVERIFY2(found.contains(cell("complaint")) && found.isEmpty() == cell("complaint").isEmpty(),
                 qPrintable(found));
    }

    void priceEntries_data()
    {
        readTable(R"(
            name                     | complaint         | entry                                                              | group
            without time and seconds |                   | <price price="1" end_offer_date="2099-12-31"/>                     | articles/article
            without seconds          |                   | <price price="1" end_offer_date="2099-12-31T10:00"/>               | articles/article
            no date                  | '31.12.2099'      | <price price="1" end_offer_date="31.12.2099"/>                     | articles/article
            package of lower case    |                   | <price price="1" type="p"/>                                        | articles/article
            letter of a transfer     | 'F'               | <price price="1" type="F"/>                                        | articles/article
            letter of an article     | 'B'               | <price price="1" type="B"/>                                        | transfers/transfer
            comma                    | '1,49'            | <price price="1,49"/>                                              | articles/article
            beyond an int            | '2147483648'      | <price price="2147483648"/>                                        | articles/article
            never read               | 'transfer_base_price' | <price price="1" transfer_base_price="1"/>                     | transfers/transfer
        )");
    }

    void priceEntries()
    {
        const QStringList tags = cell("group").split('/');
        const QString document =
            QString("<pricelist><%1><%2 id='1' group='1'%3><base_prices>%4</base_prices></%2></%1></pricelist>")
                .arg(tags.at(0), tags.at(1), tags.at(1) == "article" ? " arrangement='gift'" : "", cell("entry"));
        const QFileInfo file = myFolder.write("entry.xml", document.toUtf8());
        const QString found = complaints("pricelist", file.filePath());
        QVERIFY2(found.contains(cell("complaint")) && found.isEmpty() == cell("complaint").isEmpty(),
                 qPrintable(found));
    }

private:
    /// What xmllint says against a document, empty for a valid one.
    QString complaints(const QString& theSchema, const QString& theFile) const
    {
        QProcess process;
        process.start(XMLLINT_PROGRAM, {"--noout", "--schema", myFolder.path(theSchema + ".xsd"), theFile});
        process.waitForFinished();
        const QString errors = process.readAllStandardError();
        return process.exitCode() == 0 && process.exitStatus() == QProcess::NormalExit ? QString() : errors;
    }

    TestAccount myFolder;
};

VEL_TEST_MAIN(DocumentSchemaTest)
#include "tst_DocumentSchema.moc"
