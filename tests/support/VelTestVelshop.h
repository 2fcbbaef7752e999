#ifndef VELTESTVELSHOP_H
#define VELTESTVELSHOP_H

#include <QFile>
#include <QJsonDocument>
#include <QMap>
#include <QProcess>

/// How a run of velshop ended; the exit code is -1 when it did not end by itself.
struct VelshopAnswer
{
    int exitCode;
    QByteArray output;
    QByteArray errors;
};

/// Runs velshop in the source folder, with these variables added to the environment.
inline VelshopAnswer velshop(const QStringList& theArguments, const QMap<QString, QString>& theEnvironment = {})
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (auto variable = theEnvironment.cbegin(); variable != theEnvironment.cend(); ++variable)
        environment.insert(variable.key(), variable.value());
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(QStringLiteral(VELTARM_SOURCE_DIR));
    process.start(QStringLiteral(VELSHOP_PROGRAM), theArguments);
    if (!process.waitForFinished(60000) || process.exitStatus() != QProcess::NormalExit)
        return {-1, QByteArray(), "velshop did not end by itself"};
    return {process.exitCode(), process.readAllStandardOutput(), process.readAllStandardError()};
}

/// What velshop answers in JSON; the arguments stand between blanks.
inline QJsonDocument velshopJson(const QString& theArguments)
{
    return QJsonDocument::fromJson(velshop((theArguments + QStringLiteral(" --json")).split(QLatin1Char(' '))).output);
}

inline QByteArray fileContent(const QString& theFile)
{
    QFile file(theFile);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : "no file " + theFile.toUtf8();
}

#endif
