#include "frame/VelExpressType.h"
#include "frame/VelTarmTranslation.h"
#include "product/VelProductAbstract.h"
#include "support/VelTestMain.h"

#include <QProcess>

/// The German texts of the code and the English translation that is shipped beside them.
class TranslationsTest : public QObject
{
    Q_OBJECT

private slots:
    /// Qt's own tool gathers the texts of the code anew, and marks those without a translation and those that are gone.
    void everyTextHasATranslation()
    {
        const QTemporaryDir folder;
        QFile gathered(folder.filePath("gathered_en.ts"));
        QVERIFY(QFile::copy(VELTARM_SOURCE_DIR "/translations/veltarm_en.ts", gathered.fileName()));
        QStringList arguments{"-silent", "-locations", "none"};
        for (const char* part : {"frame", "price", "bill", "product", "ordering", "host"})
            arguments.append(QStringLiteral(VELTARM_SOURCE_DIR "/%1").arg(part));
        QCOMPARE(QProcess::execute(LUPDATE_PROGRAM, arguments + QStringList{"-ts", gathered.fileName()}), 0);
        QVERIFY(gathered.open(QIODevice::ReadOnly));
        const QByteArray texts = gathered.readAll();
        QVERIFY(texts.count("<message") >= 6);
        QVERIFY2(!texts.contains("<translation type=") && !texts.contains("<translation></translation>"), texts);
    }

    void namesAreTranslated()
    {
        QVERIFY(VelTarmTranslation::install("en_GB") && !VelTarmTranslation::install("fr"));
        const VelExpressType standard(ExpressableType_STANDARD);
        QCOMPARE(standard.humanReadableName(), "Standard production and standard shipping");
        QCOMPARE(VelExpressType::createFromHumanReadable("Standardproduktion und Standardversand"), standard);
        QCOMPARE(VelProductAbstract::nullProduct()->name(), " (no longer available)");
        QVERIFY(VelTarmTranslation::install("de"));
        QCOMPARE(VelProductAbstract::nullProduct()->name(), " (nicht mehr lieferbar)");
    }
};

VEL_TEST_MAIN(TranslationsTest)
#include "tst_Translations.moc"
