#ifndef SYNTHETICSHOP_H
#define SYNTHETICSHOP_H

#include <QByteArray>

/// A price list of so many articles in the proportions of the sample shop, with add-ons, two books, transfers and fees,
/// the same on every run.
///
/// Each twenty articles have an add-on of their own, and each of the WIDE_ADD_ONS fits a tenth of all articles. The
/// book BOOK_ID has pages, maps, videos and two templates.
QByteArray syntheticPriceList(int theArticleCount);

/// How many products a registry makes of it.
int syntheticProductCount(int theArticleCount);

/// The ids that articles and add-ons are counted from. They differ between sizes, since products are never forgotten:
/// lists of several sizes may follow one another in one registry, and a known add-on would keep the articles it fits.
int firstArticleId(int theArticleCount);
int firstAddOnId(int theArticleCount);
int firstWideAddOnId(int theArticleCount);

/// Each tenth article is of one kind, by its number: a plain ladder, the same as an offer that still runs, whose end is
/// told in local time, and others.
const int KINDS = 10;
const int KIND_LADDER = 1;
const int KIND_OFFER = 8;

const int ARTICLES_PER_ADD_ON = 20;
const int WIDE_ADD_ONS = 4;
const int BOOK_ID = 9171;

/// Shipping groups, by the way in which their transfer is charged.
const int GROUP_BY_QUANTITY = 1;
const int GROUP_TRANSFER_MODEL_2 = 2;
const int GROUP_BY_SUM = 3;

#endif
