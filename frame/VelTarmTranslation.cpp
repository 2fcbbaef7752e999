#include "frame/VelTarmTranslation.h"

#include <QCoreApplication>
#include <QPointer>
#include <QTranslator>

#include <memory>

namespace {

const QString STR_LANGUAGE_OF_THE_CODE = QStringLiteral("de");
const QString STR_TRANSLATION = QStringLiteral(":/veltarm/veltarm_%1.qm");

} // namespace

/// Of a static library the linker would leave the resources out. The macro wants to stand outside of any namespace.
static void initResources()
{
    Q_INIT_RESOURCE(veltarm);
}

bool VelTarmTranslation::install(const QString& theLanguage)
{
    static QPointer<QTranslator> ourTranslator;
    if (!QCoreApplication::instance())
        return false;
    if (theLanguage == STR_LANGUAGE_OF_THE_CODE) {
        delete ourTranslator;
        return true;
    }
    initResources();
    auto translator = std::make_unique<QTranslator>();
    if (!translator->load(STR_TRANSLATION.arg(theLanguage)))
        return false;
    delete ourTranslator;
    ourTranslator = translator.release();
    ourTranslator->setParent(QCoreApplication::instance());
    return QCoreApplication::installTranslator(ourTranslator);
}
