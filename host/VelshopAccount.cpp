#include "host/VelshopAccount.h"

#include "frame/VelChildElements.h"
#include "frame/VelTarmInitializer.h"
#include "ordering/VelOrderingDetails.h"
#include "sibling/VelDirectoryConfig.h"
#include "sibling/VelKeyAccount.h"
#include "sibling/VelXMLLoader.h"
#include "sibling/VelXMLParser.h"

#include <QDir>

namespace {

const QString STR_CURRENCIES_FILE = QStringLiteral("currencies.xml");
const QString STR_ISO_CODE = QStringLiteral("isocode");

struct LoggedMessage
{
    QtMsgType myType;
    QString myText;
};

/// While it lives, messages are kept in place of being written.
class MessageCatcher
{
public:
    MessageCatcher()
    {
        messages().clear();
        myFormerHandler =
            qInstallMessageHandler([](QtMsgType theType, const QMessageLogContext&, const QString& theText) {
                messages().append({theType, theText});
            });
    }
    ~MessageCatcher() { qInstallMessageHandler(myFormerHandler); }
    Q_DISABLE_COPY(MessageCatcher)

    /// Those of the last catcher, which it leaves behind.
    static QList<LoggedMessage>& messages()
    {
        static QList<LoggedMessage> all;
        return all;
    }

private:
    QtMessageHandler myFormerHandler;
};

/// The document element; null, with file, line, column and reason in the error, for a document that can't be read. The
/// library takes such a one for empty, but a person at a desk wants to know. The loader's own message tells all.
QDomElement readDocument(const QFileInfo& theDocument, QString& theError)
{
    const MessageCatcher catcher;
    const QDomElement root = VelXMLLoader::loadDocumentElement(theDocument);
    if (root.isNull())
        theError = MessageCatcher::messages().last().myText.section(QStringLiteral(" -- "), 1);
    return root;
}

bool holdsCurrency(const QDomElement& theCurrencies, const QString& theIsoCode)
{
    for (const QDomElement& currency : VelChildElements(theCurrencies))
        if (VelXMLParser::attribute(currency, STR_ISO_CODE, QString()) == theIsoCode)
            return true;
    return false;
}

/// Without any currency the library would end the process, and without the primary one it would have nothing to print
/// money with: both are told before either can happen.
bool canPrintMoney(const QFileInfo& theFile, const QDomElement& theCurrencies, QString& theError)
{
    const QString primary = VelOrderingDetails::instance()->currency();
    if (holdsCurrency(theCurrencies, primary))
        return true;
    theError = QStringLiteral("%1, line %2, column %3: the file does not define the shop's currency %4")
                   .arg(theFile.filePath())
                   .arg(theCurrencies.lineNumber())
                   .arg(theCurrencies.columnNumber())
                   .arg(primary);
    return false;
}

/// The library's messages wait until it is sure that the account can be used: an error is told in one line.
void startLibrary()
{
    const MessageCatcher catcher;
    VelTarmInitializer().setupModule();
}

} // namespace

bool openAccount(const QString& theFolder, QString& theError)
{
    VelDirectoryConfig::instance()->setResourceDirectory(theFolder);
    VelDirectoryConfig::instance()->setConfigurationDirectory(theFolder);
    VelKeyAccount* keyAccount = VelKeyAccount::instance();
    keyAccount->activate(QDir(theFolder));
    const QFileInfo currenciesFile(QDir(theFolder).filePath(STR_CURRENCIES_FILE));
    if (readDocument(keyAccount->pricelistXMLFileInfo(false), theError).isNull() ||
        readDocument(keyAccount->orderingDetailsXMLFileInfo(false), theError).isNull())
        return false;
    const QDomElement currencies = readDocument(currenciesFile, theError);
    if (currencies.isNull())
        return false;
    startLibrary();
    if (!canPrintMoney(currenciesFile, currencies, theError))
        return false;
    for (const LoggedMessage& message : MessageCatcher::messages())
        qt_message_output(message.myType, QMessageLogContext(), message.myText);
    return true;
}
