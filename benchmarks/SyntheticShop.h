#ifndef SYNTHETICSHOP_H
#define SYNTHETICSHOP_H

#include <QByteArray>

/// A price list of so many articles in the proportions of the sample shop, and add-ons, the same on every run.
/// Articles count from FIRST_ARTICLE_ID, add-ons from FIRST_ADD_ON_ID.
QByteArray syntheticPriceList(int theArticleCount);

const int FIRST_ARTICLE_ID = 1000000;
const int FIRST_ADD_ON_ID = 9000000;

#endif
