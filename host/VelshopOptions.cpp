#include "host/VelshopOptions.h"

#include <algorithm>

const QVector<VelshopOption>& VelshopOptions::all()
{
    static const QVector<VelshopOption> options{
        {STR_HELP, QString(), QStringLiteral("Print help; behind a command, that of the command.")},
        {STR_VERSION, QString(), QStringLiteral("Print the version.")},
        {STR_MANUAL, QString(), QStringLiteral("Print the manual page, for man.")},
        {STR_COMPLETION, QString(), QStringLiteral("Print the completion of commands and options, for bash.")},
        {STR_ACCOUNT, QStringLiteral("DIR"),
         QStringLiteral("Folder of the key account: pricelist.xml, orderingdetails.xml, currencies.xml, and where it "
                        "has them appearance.xml, icons/payment/filenames.xml and velshop.json with the name of the "
                        "shop. The sample "
                        "shop by default.")},
        {STR_JSON, QString(), QStringLiteral("Print JSON, errors included.")},
        {STR_LANGUAGE, QStringLiteral("de|en"), QStringLiteral("Language of the customer's texts: de by default.")},
        {STR_GROUP, QStringLiteral("ID"), QStringLiteral("This shipping group only.")},
        {STR_SOURCE, QStringLiteral("NET|CD|KIOSK"),
         QStringLiteral("How the order comes in; the shop's starting choice by default.")},
        {STR_DELIVERY, QStringLiteral("POS|MAIL|ONSITE"),
         QStringLiteral("How the goods go out; a kiosk goes with ONSITE alone.")},
        {STR_PAGES, QStringLiteral("N"), QStringLiteral("Pages of the composed product.")},
        {STR_MAPS, QStringLiteral("N"), QStringLiteral("Areas with a map.")},
        {STR_VIDEOS, QStringLiteral("N"), QStringLiteral("Areas with a video.")},
        {STR_TEMPLATE, QStringLiteral("CLASS=N"), QStringLiteral("Uses of templates of a price class."), true},
        {STR_HTML, QStringLiteral("FILE"), QStringLiteral("Write a page, to read in a browser and to print.")},
        {STR_CART, QStringLiteral("FILE"), QStringLiteral("Compare what this cart comes to, too."), true},
        {STR_DISCOUNTS, QStringLiteral("FILE"), QStringLiteral("Write the description of the discounts as XML.")},
        {STR_TO, QStringLiteral("N"),
         QStringLiteral("The last quantity, 100000 at most, or sum in cents; by default ten beyond the start of the "
                        "last band, and at least 100.")},
        {STR_LEVEL, QStringLiteral("N"), QStringLiteral("The discount level that an add-on inherits; 0 by default.")},
        {STR_BY, QStringLiteral("quantity|sum"),
         QStringLiteral("What runs along the curve: pieces, or the bill sum that shipping is charged by.")},
        {STR_DIPS, QString(), QStringLiteral("All quantities of the shop beyond which a larger one costs less.")},
        {STR_SVG, QStringLiteral("FILE"), QStringLiteral("Draw totals and prices per piece as a picture.")},
        {STR_SARIF, QString(), QStringLiteral("Print a SARIF 2.1.0 log, for tools that show findings in place.")},
        {STR_WATCH, QString(), QStringLiteral("Check again whenever a document is saved, until Ctrl-C.")},
        {STR_RULES, QString(), QStringLiteral("List the rules, each with its severity and a sentence.")},
        {STR_ORDER_TEXT, QString(), QStringLiteral("Print the order-text lines of each product, too.")},
        {STR_ALL, QString(), QStringLiteral("Print every candidate, and every place in the documents.")},
        {STR_PAYMENT, QStringLiteral("N"), QStringLiteral("This payment in place of the cart's.")},
        {STR_EXPRESS, QStringLiteral("0|1|2"), QStringLiteral("This express type in place of the cart's.")},
        {STR_NO_COUPON, QString(), QStringLiteral("Leave the cart's coupon out.")},
        {STR_COMPARE, QString(),
         QStringLiteral("Print what that changes of the cart, amount by amount, and that alone.")},
    };
    return options;
}

const VelshopOption& VelshopOptions::option(const QString& theName)
{
    const QVector<VelshopOption>& options = all();
    const auto found = std::find_if(options.cbegin(), options.cend(),
                                    [&](const VelshopOption& theOption) { return theOption.myName == theName; });
    Q_ASSERT(found != options.cend());
    return *found;
}

QStringList VelshopOptions::general()
{
    return {STR_ACCOUNT, STR_JSON, STR_LANGUAGE, STR_HELP, STR_VERSION, STR_MANUAL, STR_COMPLETION};
}

QString VelshopOptions::usage(const VelshopOption& theOption)
{
    const QString name = QStringLiteral("--") + theOption.myName;
    return theOption.myValue.isEmpty() ? name : name + QLatin1Char(' ') + theOption.myValue;
}
