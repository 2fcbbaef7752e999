#ifndef VELTESTMAIN_H
#define VELTESTMAIN_H

#include "support/VelTestMessages.h"
#include "support/VelTestTable.h"

#include <QDomDocument>
#include <QtTest>

#include <algorithm>
#include <limits>
#include <memory>

/// Runs the tests under a locale with decimal commas: no amount and no number may move because of it.
#define VEL_TEST_MAIN(TestClass)                                                                                       \
    int main(int argc, char* argv[])                                                                                   \
    {                                                                                                                  \
        QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));                                               \
        QCoreApplication application(argc, argv);                                                                      \
        TestClass test;                                                                                                \
        return QTest::qExec(&test, argc, argv);                                                                        \
    }

/// The document element of a fragment that stands in a test; the fragment must be well-formed.
inline QDomElement parsedElement(const QString& theXml)
{
    QDomDocument document;
    QString reason;
    if (!document.setContent(theXml, &reason))
        qFatal("The test's own fragment is not XML: %s", qPrintable(reason));
    return document.documentElement();
}

#endif
