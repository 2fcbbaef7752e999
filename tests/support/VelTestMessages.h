#ifndef VELTESTMESSAGES_H
#define VELTESTMESSAGES_H

#include <QStringList>
#include <QtGlobal>

/// Takes in all messages while it lives, in place of their being printed. There is one at a time.
class MessageCatcher
{
public:
    MessageCatcher() : myFormerHandler(qInstallMessageHandler(keep)) { ourTexts.clear(); }
    ~MessageCatcher() { qInstallMessageHandler(myFormerHandler); }
    const QStringList& texts() const { return ourTexts; }

private:
    Q_DISABLE_COPY(MessageCatcher)

    static void keep(QtMsgType, const QMessageLogContext&, const QString& theText) { ourTexts.append(theText); }

    static inline QStringList ourTexts;
    const QtMessageHandler myFormerHandler;
};

#endif
