#include "host/VelshopSchema.h"

#include "host/VelshopCommandLine.h"
#include "host/VelshopError.h"
#include "host/VelshopExitCode.h"
#include "host/VelshopOutputFile.h"
#include "insight/VelDocumentSchema.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTextStream>

namespace {

QByteArray json(const QStringList& theFiles)
{
    return QJsonDocument(QJsonObject{{QStringLiteral("files"), QJsonArray::fromStringList(theFiles)}}).toJson();
}

} // namespace

bool readSchemaArguments(const VelshopCommandLine& theLine, VelshopSchemaArguments& theArguments,
                         VelshopError& theError)
{
    theArguments.myFolder = theLine.words().at(0);
    if (theArguments.myFolder.isEmpty())
        theError = QStringLiteral("DIR is empty");
    return theError.isEmpty();
}

int writeSchemas(const VelshopSchemaArguments& theArguments, QTextStream& theOutput, VelshopError& theError)
{
    const QDir folder(theArguments.myFolder);
    if (!folder.mkpath(QStringLiteral("."))) {
        theError = VelshopError(theArguments.myFolder, 0, 0, QStringLiteral("the folder can't be made"));
        return EXIT_BAD_INPUT;
    }
    QStringList files;
    for (const VelDocumentDescription* document : VelDocumentDescription::all()) {
        files.append(folder.filePath(VelDocumentSchema::fileName(*document)));
        if (!VelshopOutputFile::write(files.last(), VelDocumentSchema::of(*document), theError))
            return EXIT_BAD_INPUT;
    }
    if (theArguments.myIsJson)
        theOutput << json(files);
    else
        theOutput << files.join(QLatin1Char('\n')) << '\n';
    return EXIT_DONE;
}
