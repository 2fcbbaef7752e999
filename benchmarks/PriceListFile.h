#ifndef PRICELISTFILE_H
#define PRICELISTFILE_H

#include "benchmarks/SyntheticShop.h"
#include "sibling/VelKeyAccount.h"

#include <QFileInfo>
#include <QTemporaryFile>

#include <memory>

/// The synthetic price list of so many articles as a file.
class PriceListFile
{
    Q_DISABLE_COPY(PriceListFile)

public:
    /// The file of so many articles, made the key account's. One is kept: that of another size is gone then.
    static const PriceListFile& ofKeyAccount(int theArticleCount)
    {
        static std::unique_ptr<PriceListFile> file;
        if (!file || file->myArticleCount != theArticleCount) {
            file.reset();
            file.reset(new PriceListFile(theArticleCount));
        }
        VelKeyAccount::instance()->setPricelistXMLFileInfo(QFileInfo(file->myFile.fileName()));
        return *file;
    }
    const QByteArray& bytes() const { return myBytes; }

private:
    explicit PriceListFile(int theArticleCount)
        : myArticleCount(theArticleCount), myBytes(syntheticPriceList(theArticleCount))
    {
        if (!myFile.open() || myFile.write(myBytes) != myBytes.size() || !myFile.flush())
            qFatal("The price list of the benchmark can't be written");
    }

    int myArticleCount;
    QByteArray myBytes;
    QTemporaryFile myFile;
};

#endif
