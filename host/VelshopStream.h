#ifndef VELSHOPSTREAM_H
#define VELSHOPSTREAM_H

#include <QTextStream>

/// Lets a stream read and write UTF-8, whatever the system's encoding is. With Qt 6 it does so anyhow.
inline void useUtf8(QTextStream& theStream)
{
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    theStream.setCodec("UTF-8");
#else
    Q_UNUSED(theStream)
#endif
}

#endif
