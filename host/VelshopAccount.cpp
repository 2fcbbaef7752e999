#include "host/VelshopAccount.h"

#include "frame/VelChildElements.h"
#include "frame/VelTarmInitializer.h"
#include "host/VelshopMessages.h"
#include "ordering/VelOrderingDetails.h"
#include "sibling/VelDirectoryConfig.h"
#include "sibling/VelKeyAccount.h"
#include "sibling/VelXMLLoader.h"
#include "sibling/VelXMLParser.h"

#include <QDir>

namespace {

const QString STR_CURRENCIES_FILE = QStringLiteral("currencies.xml");
const QString STR_ISO_CODE = QStringLiteral("isocode");

/// The document element; null, with file, line, column and reason in the error, for a document that can't be read. The
/// library takes such a one for empty, but a person at a desk wants to know. The loader's own message tells the place.
QDomElement readDocument(const QFileInfo& theDocument, VelshopError& theError)
{
    if (!theDocument.isFile()) {
        theError = {theDocument.filePath(), 0, 0, QStringLiteral("there is no such file")};
        return QDomElement();
    }
    VelshopMessages::drop();
    const QDomElement root = VelXMLLoader::loadDocumentElement(theDocument);
    if (root.isNull())
        theError = VelshopMessages::last().section(QStringLiteral(" -- "), 1);
    if (root.isNull() && theError.isEmpty()) // the log may be filtered
        theError = {theDocument.filePath(), 0, 0, QStringLiteral("can't be read")};
    VelshopMessages::drop();
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
bool canPrintMoney(const QFileInfo& theFile, const QDomElement& theCurrencies, VelshopError& theError)
{
    const QString primary = VelOrderingDetails::instance()->currency();
    if (holdsCurrency(theCurrencies, primary))
        return true;
    theError = {theFile.filePath(), theCurrencies.lineNumber(), theCurrencies.columnNumber(),
                QStringLiteral("the file does not define the shop's currency %1").arg(primary)};
    return false;
}

} // namespace

bool openAccount(const QString& theFolder, VelshopError& theError)
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
    VelTarmInitializer().setupModule();
    return canPrintMoney(currenciesFile, currencies, theError);
}

QStringList accountDocuments(const QString& theFolder)
{
    QStringList files;
    for (const char* name :
         {"pricelist.xml", "orderingdetails.xml", "currencies.xml", "appearance.xml", "icons/payment/filenames.xml"})
        files.append(QDir(theFolder).filePath(QLatin1String(name)));
    return files;
}
