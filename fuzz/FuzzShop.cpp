#include "fuzz/FuzzShop.h"

#include "frame/VelTarmInitializer.h"
#include "product/VelProductStorage.h"
#include "sibling/VelDirectoryConfig.h"
#include "sibling/VelKeyAccount.h"
#include "sibling/VelXMLLoader.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <cstdio>
#include <cstdlib>

namespace {

const QString STR_SAMPLE_SHOP = QStringLiteral(VELTARM_SOURCE_DIR "/shop");

/// Products on the shelves share one block of memory; an access beyond one of them would go unseen.
void useUpStorage()
{
    VelProductStorage::allocate(VelProductStorage::SHELF_MAIN_PRODUCTS, 64 * 1024 * 1024);
    VelProductStorage::allocate(VelProductStorage::SHELF_ADD_ONS, 32 * 1024 * 1024);
}

} // namespace

void FuzzShop::fail(const char* theCondition, const char* theFile, int theLine)
{
    std::fprintf(stderr, "%s:%d: does not hold: %s\n", theFile, theLine, theCondition);
    std::abort();
}

void FuzzShop::open()
{
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    qSetGlobalQHashSeed(0); // the same input takes the same way in each process
    useUpStorage();
    VelDirectoryConfig::instance()->setConfigurationDirectory(STR_SAMPLE_SHOP);
    VelDirectoryConfig::instance()->setResourceDirectory(STR_SAMPLE_SHOP);
    VelKeyAccount::instance()->activate(QDir(STR_SAMPLE_SHOP));
    VelTarmInitializer().setupModule();
}

QString FuzzShop::write(const QString& theName, const QByteArray& theContent)
{
    static const QTemporaryDir folder;
    const QString path = folder.filePath(theName);
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly)) {
        FUZZ_REQUIRE(QDir().mkpath(QFileInfo(path).path()));
        FUZZ_REQUIRE(file.open(QIODevice::WriteOnly));
    }
    FUZZ_REQUIRE(file.write(theContent) == theContent.size());
    return path;
}

QDomElement FuzzShop::load(const QByteArray& theDocument)
{
    return VelXMLLoader::loadDocumentElement(QFileInfo(write(QStringLiteral("document.xml"), theDocument)));
}

QList<QByteArray> FuzzShop::documents(const uint8_t* theData, size_t theSize)
{
    static const QByteArray separator = QByteArrayLiteral("\n%%\n");
    QByteArray rest(reinterpret_cast<const char*>(theData), static_cast<int>(theSize));
    QList<QByteArray> documents;
    for (int end = rest.indexOf(separator); end >= 0; end = rest.indexOf(separator)) {
        documents.append(rest.left(end));
        rest = rest.mid(end + separator.size());
    }
    return documents << rest;
}
