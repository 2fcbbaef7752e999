#include "host/VelshopMessages.h"

#include "host/VelshopStream.h"

#include <QStringList>

namespace {

/// How the library's log says that a file as a whole is meant.
const QString STR_NO_PLACE = QStringLiteral(", line 0, column 0");

QStringList& messages()
{
    static QStringList kept;
    return kept;
}

} // namespace

void VelshopMessages::holdBack()
{
    qInstallMessageHandler(
        [](QtMsgType, const QMessageLogContext&, const QString& theText) { messages().append(theText); });
}

void VelshopMessages::write()
{
    QTextStream errors(stderr);
    useUtf8(errors);
    for (const QString& message : qAsConst(messages()))
        errors << QString(message).remove(STR_NO_PLACE) << '\n';
}
