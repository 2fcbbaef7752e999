#include "host/VelshopMessages.h"

#include "host/VelshopStream.h"

#include <QStringList>

namespace {

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

QString VelshopMessages::last()
{
    return messages().isEmpty() ? QString() : messages().last();
}

void VelshopMessages::drop()
{
    messages().clear();
}

void VelshopMessages::write()
{
    QTextStream errors(stderr);
    useUtf8(errors);
    for (const QString& message : qAsConst(messages()))
        errors << message << '\n';
}
