#ifndef PRICELISTFILE_H
#define PRICELISTFILE_H

#include "benchmarks/SyntheticShop.h"
#include "sibling/VelKeyAccount.h"

#include <QFileInfo>
#include <QTemporaryFile>

/// The synthetic price list of so many articles, as the file of the key account.
class PriceListFile
{
public:
    explicit PriceListFile(int theArticleCount) : myBytes(syntheticPriceList(theArticleCount))
    {
        if (!myFile.open() || myFile.write(myBytes) != myBytes.size() || !myFile.flush())
            qFatal("The price list of the benchmark can't be written");
        VelKeyAccount::instance()->setPricelistXMLFileInfo(QFileInfo(myFile.fileName()));
    }
    const QByteArray& bytes() const { return myBytes; }

private:
    QByteArray myBytes;
    QTemporaryFile myFile;
};

#endif
