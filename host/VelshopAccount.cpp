#include "host/VelshopAccount.h"

#include "frame/VelChildElements.h"
#include "frame/VelTarmInitializer.h"
#include "host/VelshopJsonReader.h"
#include "ordering/VelOrderingDetails.h"
#include "product/VelProductRegistry.h"
#include "sibling/VelDirectoryConfig.h"
#include "sibling/VelKeyAccount.h"
#include "sibling/VelXMLLoader.h"
#include "sibling/VelXMLParser.h"

#include <QDir>

namespace {

const QString STR_CURRENCIES_FILE = QStringLiteral("currencies.xml");
const QString STR_SETTINGS_FILE = QStringLiteral("velshop.json");
const QString STR_SHOP = QStringLiteral("shop");
const QString STR_ISO_CODE = QStringLiteral("isocode");

/// Documents are regular files: a device might never end.
bool isThere(const QFileInfo& theDocument, VelshopError& theError)
{
    if (!theDocument.isFile())
        theError = {theDocument.filePath(), 0, 0, QStringLiteral("there is no such file")};
    return theError.isEmpty();
}

/// The library takes a document that can't be read for empty, but a person at a desk wants to know.
bool wasRead(const VelTarmLoadResult& theLoad, VelshopError& theError)
{
    if (!theLoad.wasRead())
        theError = {theLoad.file(), theLoad.line(), theLoad.column(), theLoad.reason()};
    return theError.isEmpty();
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
    return openAccountWith(QString(), theFolder, theError);
}

bool openAccountWith(const QString& thePriceList, const QString& theFolder, VelshopError& theError)
{
    VelDirectoryConfig::instance()->setResourceDirectory(theFolder);
    VelDirectoryConfig::instance()->setConfigurationDirectory(theFolder);
    VelKeyAccount* keyAccount = VelKeyAccount::instance();
    keyAccount->activate(QDir(theFolder));
    if (!thePriceList.isEmpty())
        keyAccount->setPricelistXMLFileInfo(QFileInfo(thePriceList));
    const QFileInfo currenciesFile(QDir(theFolder).filePath(STR_CURRENCIES_FILE));
    if (!isThere(keyAccount->pricelistXMLFileInfo(false), theError) ||
        !isThere(keyAccount->orderingDetailsXMLFileInfo(false), theError) || !isThere(currenciesFile, theError))
        return false;
    VelTarmInitializer().setupModule();
    const QDomElement currencies = VelXMLLoader::loadDocumentElement(currenciesFile);
    return wasRead(VelProductRegistry::instance()->lastLoad(), theError) &&
           wasRead(VelOrderingDetails::instance()->lastLoad(), theError) &&
           wasRead(VelTarmLoadResult(currenciesFile, currencies), theError) &&
           canPrintMoney(currenciesFile, currencies, theError);
}

QStringList accountDocuments(const QString& theFolder)
{
    QStringList files;
    for (const char* name : {"pricelist.xml", "orderingdetails.xml", "currencies.xml", "appearance.xml",
                             "icons/payment/filenames.xml", "velshop.json"})
        files.append(QDir(theFolder).filePath(QLatin1String(name)));
    return files;
}

bool readShopName(const QString& theFolder, QString& theName, VelshopError& theError)
{
    const QString file = QDir(theFolder).filePath(STR_SETTINGS_FILE);
    if (!QFileInfo::exists(file))
        return true;
    VelshopJsonReader reader(file);
    const QJsonObject settings = reader.document();
    if (!reader.isRefused()) {
        reader.allowKeys(settings, QString(), {STR_SHOP});
        theName = reader.text(settings.value(STR_SHOP), STR_SHOP);
    }
    theError = reader.error();
    return !reader.isRefused();
}
