#include "host/VelshopOutputFile.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSaveFile>

#include <cstdio>
#include <filesystem>

namespace {

const QString STR_STANDARD_INPUT = QStringLiteral("/dev/stdin");
const QString STR_STANDARD_OUTPUT = QStringLiteral("/dev/stdout");

std::filesystem::path path(const QString& theFile)
{
#ifdef Q_OS_WIN
    return theFile.toStdWString();
#else
    return QFile::encodeName(theFile).toStdString();
#endif
}

/// Where a file that isn't there yet would come to stand: QSaveFile follows links, too.
QString placeOf(const QString& theFile)
{
    QFileInfo file(theFile);
    for (int link = 0; file.isSymLink() && link < 40; ++link) // as many as the system follows
        file.setFile(file.symLinkTarget());
    return QDir(file.dir().canonicalPath()).filePath(file.fileName());
}

/// Whether two names lead to one file that can hold something; to a device like /dev/null both may be written.
bool isSame(const QString& theLeft, const QString& theRight)
{
    std::error_code failure;
    if (std::filesystem::is_character_file(path(theLeft), failure))
        return false;
    if (std::filesystem::exists(path(theLeft), failure) || std::filesystem::exists(path(theRight), failure))
        return std::filesystem::equivalent(path(theLeft), path(theRight), failure);
    return placeOf(theLeft) == placeOf(theRight);
}

/// The number of the open file that a name stands for, -1 for any other name.
int descriptorOf(const QString& theFile)
{
    static const QRegularExpression numbered(QStringLiteral("^/(?:dev|proc/self)/fd/([0-9]{1,4})$"));
    if (theFile == STR_STANDARD_OUTPUT)
        return 1;
    if (theFile == QLatin1String("/dev/stderr"))
        return 2;
    const QRegularExpressionMatch match = numbered.match(theFile);
    return match.hasMatch() ? match.captured(1).toInt() : -1;
}

/// Why the file must not be written, empty if it may.
QString reasonAgainst(const QString& theFile, const QStringList& theInputs, const QStringList& theFormerFiles)
{
    if (QFileInfo(theFile).isDir())
        return QStringLiteral("is a folder");
    for (const QString& input : theInputs)
        if (isSame(theFile, input == QLatin1String("-") ? STR_STANDARD_INPUT : input))
            return QStringLiteral("is also an input (%1) and is not overwritten").arg(input);
    for (const QString& file : theFormerFiles)
        if (isSame(theFile, file))
            return QStringLiteral("can't take two outputs");
    // Replaced, it would lose what standard output writes to it.
    if (QFileInfo(theFile).isFile() && descriptorOf(theFile) < 0 && isSame(theFile, STR_STANDARD_OUTPUT))
        return QStringLiteral("can't take two outputs, it is the standard output, too");
    return QString();
}

bool writeAll(QFileDevice& theFile, const QByteArray& theContent)
{
    return theFile.write(theContent) == theContent.size() && theFile.flush();
}

/// Flushed by hand: a disk that turns out to be full when commit() flushes would not keep it from replacing the former
/// file.
bool replace(const QString& theFile, const QByteArray& theContent, QString& theReason)
{
    QSaveFile file(theFile);
    const bool isDone = file.open(QIODevice::WriteOnly) && writeAll(file, theContent) && file.commit();
    theReason = file.errorString();
    return isDone;
}

/// An open file is not opened again by its name: that would start at its beginning.
bool writeDirectly(const QString& theFile, const QByteArray& theContent, QString& theReason)
{
    const int descriptor = descriptorOf(theFile);
    QFile file(theFile);
    const bool isOpen = descriptor >= 0 ? file.open(descriptor, QIODevice::WriteOnly, QFileDevice::DontCloseHandle)
                                        : file.open(QIODevice::WriteOnly);
    const bool isDone = isOpen && writeAll(file, theContent);
    theReason = file.errorString();
    return isDone;
}

} // namespace

bool VelshopOutputFile::areSafe(const QStringList& theFiles, const QStringList& theInputs, VelshopError& theError)
{
    QStringList former;
    for (const QString& file : theFiles) {
        const QString reason = file.isEmpty() ? QString() : reasonAgainst(file, theInputs, former);
        if (!reason.isEmpty()) {
            theError = {file, 0, 0, reason};
            return false;
        }
        if (!file.isEmpty())
            former.append(file);
    }
    return true;
}

bool VelshopOutputFile::write(const QString& theFile, const QByteArray& theContent, VelshopError& theError)
{
    const QFileInfo info(theFile);
    const bool isReplaced = descriptorOf(theFile) < 0 && (info.isFile() || !info.exists());
    QString reason;
    const bool isDone = isReplaced ? replace(theFile, theContent, reason) : writeDirectly(theFile, theContent, reason);
    if (!isDone)
        theError = {theFile, 0, 0, reason};
    return isDone;
}
