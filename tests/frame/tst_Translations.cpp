#include "frame/VelChildElements.h"
#include "support/VelTestMain.h"

#include <QProcess>
#include <QTranslator>

namespace {

const QString TRANSLATION = QStringLiteral(VELTARM_SOURCE_DIR "/translations/veltarm_en.ts");

struct Message
{
    QString myContext;
    QString mySource;
    QString myTranslation;
    bool myIsFinished;
};

QList<Message> messages(const QString& theFile)
{
    QFile file(theFile);
    QDomDocument document;
    if (!file.open(QIODevice::ReadOnly) || !document.setContent(&file))
        qFatal("No translation file: %s", qPrintable(theFile));
    QList<Message> result;
    for (const QDomElement& context : VelChildElements(document.documentElement(), "context")) {
        for (const QDomElement& message : VelChildElements(context, "message")) {
            const QDomElement translation = message.firstChildElement("translation");
            result.append({context.firstChildElement("name").text(), message.firstChildElement("source").text(),
                           translation.text(), !translation.hasAttribute("type")});
        }
    }
    return result;
}

} // namespace

/// The German texts of the code and the English translation that is shipped beside them.
class TranslationsTest : public QObject
{
    Q_OBJECT

private slots:
    /// Qt's own tool gathers the texts of the code anew: a text without a translation, or one of a text that is gone,
    /// shows.
    void everyTextHasATranslation()
    {
        const QTemporaryDir folder;
        const QString gathered = folder.filePath("gathered_en.ts");
        QVERIFY(QFile::copy(TRANSLATION, gathered));
        QStringList arguments{"-silent", "-locations", "none"};
        for (const char* part : {"frame", "price", "bill", "product", "ordering"})
            arguments.append(QStringLiteral(VELTARM_SOURCE_DIR "/%1").arg(part));
        arguments << "-ts" << gathered;
        QCOMPARE(QProcess::execute(QStringLiteral(LUPDATE_PROGRAM), arguments), 0);

        const QList<Message> all = messages(gathered);
        QVERIFY(all.size() >= 6);
        for (const Message& message : all)
            QVERIFY2(message.myIsFinished && !message.myTranslation.isEmpty(),
                     qPrintable(message.myContext + ": " + message.mySource));
    }
    void theTranslationIsBuiltIn()
    {
        QTranslator translator;
        QVERIFY(translator.load(QStringLiteral(TRANSLATION_BINARY)));
        for (const Message& message : messages(TRANSLATION))
            QCOMPARE(translator.translate(message.myContext.toUtf8(), message.mySource.toUtf8()),
                     message.myTranslation);
    }
};

VEL_TEST_MAIN(TranslationsTest)
#include "tst_Translations.moc"
