#ifndef VELSHOPOPTIONS_H
#define VELSHOPOPTIONS_H

#include <QString>
#include <QStringList>
#include <QVector>

/// An option of the command line, whichever commands take it.
struct VelshopOption
{
    QString myName; ///< without the dashes
    /// As help shows it, empty for an option that takes none. It tells completion what to offer: "FILE" and "DIR" are
    /// names of files, "de|en" is a choice of words.
    QString myValue;
    QString myDescription; ///< a sentence
    bool myIsRepeatable = false;
};

/// The one table of all options: what the command line takes, and what help, manual and completion tell.
namespace VelshopOptions {

inline const QString STR_HELP = QStringLiteral("help");
inline const QString STR_VERSION = QStringLiteral("version");
inline const QString STR_MANUAL = QStringLiteral("manual");
inline const QString STR_COMPLETION = QStringLiteral("bash-completion");
inline const QString STR_ACCOUNT = QStringLiteral("account");
inline const QString STR_JSON = QStringLiteral("json");
inline const QString STR_LANGUAGE = QStringLiteral("language");
inline const QString STR_GROUP = QStringLiteral("group");
inline const QString STR_SOURCE = QStringLiteral("source");
inline const QString STR_DELIVERY = QStringLiteral("delivery");
inline const QString STR_PAGES = QStringLiteral("pages");
inline const QString STR_MAPS = QStringLiteral("maps");
inline const QString STR_VIDEOS = QStringLiteral("videos");
inline const QString STR_TEMPLATE = QStringLiteral("template");
inline const QString STR_HTML = QStringLiteral("html");
inline const QString STR_CART = QStringLiteral("cart");
inline const QString STR_DISCOUNTS = QStringLiteral("discounts");
inline const QString STR_TO = QStringLiteral("to");
inline const QString STR_LEVEL = QStringLiteral("level");
inline const QString STR_BY = QStringLiteral("by");
inline const QString STR_DIPS = QStringLiteral("dips");
inline const QString STR_SVG = QStringLiteral("svg");
inline const QString STR_SARIF = QStringLiteral("sarif");
inline const QString STR_WATCH = QStringLiteral("watch");
inline const QString STR_RULES = QStringLiteral("rules");
inline const QString STR_ORDER_TEXT = QStringLiteral("order-text");
inline const QString STR_ALL = QStringLiteral("all");
inline const QString STR_PAYMENT = QStringLiteral("payment");
inline const QString STR_EXPRESS = QStringLiteral("express");
inline const QString STR_NO_COUPON = QStringLiteral("no-coupon");
inline const QString STR_COMPARE = QStringLiteral("compare");

const QVector<VelshopOption>& all();

/// The option of a name, which has to be in the table.
const VelshopOption& option(const QString& theName);

/// The names of those that every command has, and those that stand without a command.
QStringList general();

/// As "--account DIR".
QString usage(const VelshopOption& theOption);

} // namespace VelshopOptions

#endif
