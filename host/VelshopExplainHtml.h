#ifndef VELSHOPEXPLAINHTML_H
#define VELSHOPEXPLAINHTML_H

#include "insight/VelPriceExplanation.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

/// An explanation as a page: a line for each term, which unfolds into its candidates and places. Printed, it
/// shows what was reckoned, the candidates, and the places that decide. The notes stand below the head.
QByteArray explanationPage(const VelPriceExplanation& theExplanation, const QString& theHead,
                           const QStringList& theNotes);

#endif
