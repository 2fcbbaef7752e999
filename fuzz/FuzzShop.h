#ifndef FUZZSHOP_H
#define FUZZSHOP_H

#include <QByteArray>
#include <QDomElement>
#include <QList>
#include <QString>

#include <cstddef>
#include <cstdint>

/// Ends the program, and by that the run, when something does not hold that has to hold for every input.
#define FUZZ_REQUIRE(theCondition)                                                                                     \
    do {                                                                                                               \
        if (!(theCondition))                                                                                           \
            FuzzShop::fail(#theCondition, __FILE__, __LINE__);                                                         \
    } while (false)

/// What the fuzz targets stand on.
namespace FuzzShop {

[[noreturn]] void fail(const char* theCondition, const char* theFile, int theLine);

/// Opens the sample shop, without a word from then on. Products come from the heap, where the sanitizer sees each.
void open();

/// A file of the process's own folder, with that content. Folders in the name are made.
QString write(const QString& theName, const QByteArray& theContent);

/// The document element, read as the library reads its documents.
QDomElement load(const QByteArray& theDocument);

/// The documents of an input: what stands between the lines "%%".
QList<QByteArray> documents(const uint8_t* theData, size_t theSize);

} // namespace FuzzShop

#endif
