#ifndef PRICELISTFILE_H
#define PRICELISTFILE_H

#include "benchmarks/SyntheticShop.h"
#include "product/VelProductRegistry.h"
#include "sibling/VelKeyAccount.h"

#include <QFileInfo>
#include <QTemporaryFile>

#include <memory>

/// A made price list of so many articles as a file.
class PriceListFile
{
    Q_DISABLE_COPY(PriceListFile)

public:
    using Maker = QByteArray (*)(int theArticleCount);

    /// The file of so many articles, made the key account's. One is kept: another one is gone then.
    static const PriceListFile& ofKeyAccount(int theArticleCount, Maker theMaker = syntheticPriceList)
    {
        static std::unique_ptr<PriceListFile> file;
        if (!file || !file->is(theArticleCount, theMaker)) {
            file.reset();
            file.reset(new PriceListFile(theArticleCount, theMaker));
        }
        VelKeyAccount::instance()->setPricelistXMLFileInfo(QFileInfo(file->myFile.fileName()));
        return *file;
    }

    /// The same in the application's registry, if another one is in it.
    static void load(int theArticleCount, Maker theMaker = syntheticPriceList)
    {
        static int loadedCount = 0;
        static Maker loadedMaker = nullptr;
        if (loadedCount == theArticleCount && loadedMaker == theMaker)
            return;
        ofKeyAccount(theArticleCount, theMaker);
        VelProductRegistry* registry = VelProductRegistry::instance(); // the first one has read the file already
        if (loadedMaker)
            registry->loadAllProducts();
        loadedCount = theArticleCount;
        loadedMaker = theMaker;
    }

    const QByteArray& bytes() const { return myBytes; }

private:
    PriceListFile(int theArticleCount, Maker theMaker)
        : myArticleCount(theArticleCount), myMaker(theMaker), myBytes(theMaker(theArticleCount))
    {
        if (!myFile.open() || myFile.write(myBytes) != myBytes.size() || !myFile.flush())
            qFatal("The price list of the benchmark can't be written");
    }
    bool is(int theArticleCount, Maker theMaker) const
    {
        return myArticleCount == theArticleCount && myMaker == theMaker;
    }

    int myArticleCount;
    Maker myMaker;
    QByteArray myBytes;
    QTemporaryFile myFile;
};

#endif
