#include "frame/VelKeptTexts.h"

#include <QSet>

namespace {

int ourReadings = 0;

/// Empty between readings: a text lives no longer than those who keep it.
QSet<QString>& texts()
{
    static QSet<QString> theTexts;
    return theTexts;
}

} // namespace

VelKeptTexts::VelKeptTexts()
{
    ++ourReadings;
}

VelKeptTexts::~VelKeptTexts()
{
    if (--ourReadings == 0)
        texts() = QSet<QString>();
}

QString VelKeptTexts::kept(const QString& theText)
{
    if (theText.isEmpty())
        return theText.isNull() ? QString() : QStringLiteral("");
    const auto known = texts().constFind(theText);
    if (known != texts().constEnd())
        return *known;
    const QString copy(theText.constData(), theText.size());
    if (ourReadings > 0)
        texts().insert(copy);
    return copy;
}
