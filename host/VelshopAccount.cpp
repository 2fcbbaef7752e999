#include "host/VelshopAccount.h"

#include "frame/VelTarmInitializer.h"
#include "sibling/VelDirectoryConfig.h"
#include "sibling/VelKeyAccount.h"
#include "sibling/VelXMLLoader.h"

#include <QDir>

namespace {

/// While it lives, messages are kept in place of being written.
class MessageCatcher
{
public:
    MessageCatcher()
    {
        lastMessage().clear();
        myFormerHandler = qInstallMessageHandler(
            [](QtMsgType, const QMessageLogContext&, const QString& theText) { lastMessage() = theText; });
    }
    ~MessageCatcher() { qInstallMessageHandler(myFormerHandler); }
    Q_DISABLE_COPY(MessageCatcher)

    static QString& lastMessage()
    {
        static QString message;
        return message;
    }

private:
    QtMessageHandler myFormerHandler;
};

/// The library takes a document that can't be read for one without content; a person at a desk wants to know. The
/// loader's own message tells file, line, column and reason behind its name.
bool canRead(const QFileInfo& theDocument, QString& theError)
{
    const MessageCatcher catcher;
    if (!VelXMLLoader::loadDocumentElement(theDocument).isNull())
        return true;
    theError = MessageCatcher::lastMessage().section(QStringLiteral(" -- "), 1);
    return false;
}

} // namespace

bool openAccount(const QString& theFolder, QString& theError)
{
    VelDirectoryConfig::instance()->setResourceDirectory(theFolder);
    VelDirectoryConfig::instance()->setConfigurationDirectory(theFolder);
    VelKeyAccount* keyAccount = VelKeyAccount::instance();
    keyAccount->activate(QDir(theFolder));
    if (!canRead(keyAccount->pricelistXMLFileInfo(false), theError) ||
        !canRead(keyAccount->orderingDetailsXMLFileInfo(false), theError))
        return false;
    VelTarmInitializer().setupModule();
    return true;
}
