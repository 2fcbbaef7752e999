#ifndef VELSHOPGAPSDATA_H
#define VELSHOPGAPSDATA_H

#include <QJsonObject>

struct VelshopGapsSheet;

/// The map of gaps as `velshop gaps --json` prints it: `cells` and `fees`.
QJsonObject gapsData(const VelshopGapsSheet& theSheet);

#endif
