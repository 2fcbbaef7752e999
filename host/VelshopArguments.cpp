#include "host/VelshopArguments.h"

#include "host/VelshopWords.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QRegularExpression>
#include <QVector>

#include <limits>

namespace {

const QString STR_HELP = QStringLiteral("help");
const QString STR_ACCOUNT = QStringLiteral("account");
const QString STR_JSON = QStringLiteral("json");
const QString STR_LANGUAGE = QStringLiteral("language");
const QString STR_GROUP = QStringLiteral("group");
const QString STR_SOURCE = QStringLiteral("source");
const QString STR_DELIVERY = QStringLiteral("delivery");
const QString STR_PAGES = QStringLiteral("pages");
const QString STR_MAPS = QStringLiteral("maps");
const QString STR_VIDEOS = QStringLiteral("videos");
const QString STR_TEMPLATE = QStringLiteral("template");
const QString STR_HTML = QStringLiteral("html");
const QString STR_DISCOUNTS = QStringLiteral("discounts");
const QString STR_ORDER_TEXT = QStringLiteral("order-text");

const int LOWEST_ID = std::numeric_limits<int>::min();

const QString STR_DESCRIPTION = QStringLiteral(
    "The order desk of a shop for photo products.\n\n"
    "  velshop list [--group ID]\n"
    "      articles with id, name, shipping group, type, price of a piece, and whether they can be ordered\n"
    "  velshop price ARTICLE COUNT [--source NET|CD|KIOSK] [--delivery POS|MAIL|ONSITE]\n"
    "      what so many pieces cost, with the discount model, level and band of each line\n"
    "  velshop bands GROUP\n"
    "      the discount bands of a shipping group, with the price of each product in each band\n"
    "  velshop unit ARTICLE --pages N [--maps N] [--videos N] [--template CLASS=N]...\n"
    "      the unit price of a composed book or calendar, part by part\n"
    "  velshop bill CART [--html FILE] [--discounts FILE] [--order-text]\n"
    "      the bills of a cart, one for each shipping group, and the order's totals\n"
    "  velshop shop\n"
    "      the conditions: order ways, payments, currencies, shipping groups and the like\n"
    "  velshop types\n"
    "      product types with their products, scales and page ranges\n\n"
    "Exit codes: 0 done, 1 there is no price, 2 a wrong argument or an unreadable document.");

/// The sample shop of the installation that the program runs from, otherwise that of the source folder.
QString sampleAccount()
{
    const QDir installed(QCoreApplication::applicationDirPath() + QStringLiteral("/../share/veltarm/shop"));
    return installed.exists() ? QDir::cleanPath(installed.path()) : QStringLiteral(VELSHOP_SAMPLE_ACCOUNT);
}

void declareOptions(QCommandLineParser& theParser)
{
    theParser.setApplicationDescription(STR_DESCRIPTION);
    theParser.addOption({{QStringLiteral("h"), STR_HELP}, QStringLiteral("Print this help.")});
    theParser.addVersionOption();
    theParser.addPositionalArgument(QStringLiteral("command"),
                                    QStringLiteral("list, price, bands, unit, bill, shop or types"));
    theParser.addOptions({
        {STR_ACCOUNT,
         QStringLiteral("Folder of the key account: pricelist.xml, orderingdetails.xml, currencies.xml, and where it "
                        "has them appearance.xml and icons/payment/filenames.xml."),
         QStringLiteral("DIR"), sampleAccount()},
        {STR_JSON, QStringLiteral("Print JSON.")},
        {STR_LANGUAGE, QStringLiteral("Language of the customer texts: de (default) or en."), QStringLiteral("CODE"),
         QStringLiteral("de")},
        {STR_GROUP, QStringLiteral("list: this shipping group only."), QStringLiteral("ID")},
        {STR_SOURCE,
         QStringLiteral("price: how the order comes in, NET, CD or KIOSK; the shop's starting choice by default."),
         QStringLiteral("SOURCE")},
        {STR_DELIVERY,
         QStringLiteral("price: how the goods go out, POS, MAIL or ONSITE; a kiosk goes with ONSITE alone."),
         QStringLiteral("DELIVERY")},
        {STR_PAGES, QStringLiteral("unit: pages of the composed product."), QStringLiteral("N")},
        {STR_MAPS, QStringLiteral("unit: areas with a map."), QStringLiteral("N")},
        {STR_VIDEOS, QStringLiteral("unit: areas with a video."), QStringLiteral("N")},
        {STR_TEMPLATE, QStringLiteral("unit: uses of templates of a price class; may be given several times."),
         QStringLiteral("CLASS=N")},
        {STR_HTML, QStringLiteral("bill: write the same as a page that can be printed."), QStringLiteral("FILE")},
        {STR_DISCOUNTS, QStringLiteral("bill: write the description of the discounts as XML."), QStringLiteral("FILE")},
        {STR_ORDER_TEXT, QStringLiteral("bill: print the order-text lines of each product, too.")},
    });
}

bool readNumber(const QString& theText, const QString& theName, int theLowest, int& theNumber, QString& theError)
{
    bool isNumber = false;
    theNumber = theText.toInt(&isNumber);
    if (isNumber && theNumber >= theLowest)
        return true;
    theError = QStringLiteral("%1 must be a whole number from %2 to 2147483647, not \"%3\"")
                   .arg(theName)
                   .arg(theLowest)
                   .arg(theText);
    return false;
}

bool readOrderSource(const QCommandLineParser& theParser, VelshopArguments& theArguments, QString& theError)
{
    const QString source = theParser.value(STR_SOURCE);
    if (theParser.isSet(STR_SOURCE) && !VelshopWords::readInputSource(source, theArguments.myInputSource)) {
        theError = QStringLiteral("--source must be NET, CD or KIOSK, not \"%1\"").arg(source);
        return false;
    }
    const QString delivery = theParser.value(STR_DELIVERY);
    if (theParser.isSet(STR_DELIVERY) && !VelshopWords::readDeliveryType(delivery, theArguments.myDeliveryType)) {
        theError = QStringLiteral("--delivery must be POS, MAIL or ONSITE, not \"%1\"").arg(delivery);
        return false;
    }
    return true;
}

bool readPriceArguments(const QCommandLineParser& theParser, VelshopArguments& theArguments, QString& theError)
{
    const QStringList words = theParser.positionalArguments();
    return readNumber(words.at(1), QStringLiteral("ARTICLE"), LOWEST_ID, theArguments.myArticle, theError) &&
           readNumber(words.at(2), QStringLiteral("COUNT"), 1, theArguments.myCount, theError) &&
           readOrderSource(theParser, theArguments, theError);
}

bool readListArguments(const QCommandLineParser& theParser, VelshopArguments& theArguments, QString& theError)
{
    theArguments.myHasGroup = theParser.isSet(STR_GROUP);
    return !theArguments.myHasGroup ||
           readNumber(theParser.value(STR_GROUP), QStringLiteral("--group"), LOWEST_ID, theArguments.myGroup, theError);
}

bool readBandsArguments(const QCommandLineParser& theParser, VelshopArguments& theArguments, QString& theError)
{
    return readNumber(theParser.positionalArguments().at(1), QStringLiteral("GROUP"), LOWEST_ID, theArguments.myGroup,
                      theError);
}

bool readCount(const QCommandLineParser& theParser, const QString& theOption, int& theCount, QString& theError)
{
    return !theParser.isSet(theOption) ||
           readNumber(theParser.value(theOption), QStringLiteral("--") + theOption, 0, theCount, theError);
}

bool readTemplates(const QCommandLineParser& theParser, QMap<QString, int>& theTemplates, QString& theError)
{
    for (const QString& text : theParser.values(STR_TEMPLATE)) {
        const int equals = text.lastIndexOf(QLatin1Char('='));
        int uses = 0;
        if (equals < 1) {
            theError = QStringLiteral("--template takes CLASS=N, not \"%1\"").arg(text);
            return false;
        }
        if (!readNumber(text.mid(equals + 1), QStringLiteral("--template CLASS="), 0, uses, theError))
            return false;
        theTemplates[text.left(equals)] = uses;
    }
    return true;
}

bool readUnitArguments(const QCommandLineParser& theParser, VelshopArguments& theArguments, QString& theError)
{
    if (!theParser.isSet(STR_PAGES)) {
        theError = QStringLiteral("unit needs --pages");
        return false;
    }
    return readNumber(theParser.positionalArguments().at(1), QStringLiteral("ARTICLE"), LOWEST_ID,
                      theArguments.myArticle, theError) &&
           readCount(theParser, STR_PAGES, theArguments.myPages, theError) &&
           readCount(theParser, STR_MAPS, theArguments.myMaps, theError) &&
           readCount(theParser, STR_VIDEOS, theArguments.myVideos, theError) &&
           readTemplates(theParser, theArguments.myTemplates, theError);
}

bool readFile(const QCommandLineParser& theParser, const QString& theOption, QString& theFile, QString& theError)
{
    theFile = theParser.value(theOption);
    if (theParser.isSet(theOption) && theFile.isEmpty())
        theError = QStringLiteral("--%1 names no file").arg(theOption);
    return theError.isEmpty();
}

bool readBillArguments(const QCommandLineParser& theParser, VelshopArguments& theArguments, QString& theError)
{
    theArguments.myCart = theParser.positionalArguments().at(1);
    theArguments.myHasOrderText = theParser.isSet(STR_ORDER_TEXT);
    return readFile(theParser, STR_HTML, theArguments.myHtmlFile, theError) &&
           readFile(theParser, STR_DISCOUNTS, theArguments.myDiscountsFile, theError);
}

/// How a command reads its own arguments, how many words it takes behind its name, and which options belong to it.
struct Command
{
    const char* myName;
    int myWords;
    QStringList myOptions;
    bool (*myRead)(const QCommandLineParser&, VelshopArguments&, QString&);
};

bool readNothing(const QCommandLineParser&, VelshopArguments&, QString&)
{
    return true;
}

const QVector<Command>& commands()
{
    static const QVector<Command> all{{"list", 0, {STR_GROUP}, readListArguments},
                                      {"price", 2, {STR_SOURCE, STR_DELIVERY}, readPriceArguments},
                                      {"bands", 1, {}, readBandsArguments},
                                      {"unit", 1, {STR_PAGES, STR_MAPS, STR_VIDEOS, STR_TEMPLATE}, readUnitArguments},
                                      {"bill", 1, {STR_HTML, STR_DISCOUNTS, STR_ORDER_TEXT}, readBillArguments},
                                      {"shop", 0, {}, readNothing},
                                      {"types", 0, {}, readNothing}};
    return all;
}

/// An option that the command would ignore is an error, not a wish.
bool takes(const Command& theCommand, const QCommandLineParser& theParser, QString& theError)
{
    for (const QString& option : {STR_GROUP, STR_SOURCE, STR_DELIVERY, STR_PAGES, STR_MAPS, STR_VIDEOS, STR_TEMPLATE,
                                  STR_HTML, STR_DISCOUNTS, STR_ORDER_TEXT}) {
        if (theParser.isSet(option) && !theCommand.myOptions.contains(option)) {
            theError = QStringLiteral("--%1 does not belong to %2").arg(option, QLatin1String(theCommand.myName));
            return false;
        }
    }
    const int words = theParser.positionalArguments().size() - 1;
    if (words != theCommand.myWords)
        theError = QStringLiteral("%1 takes %2 arguments behind its name, not %3; see velshop --help")
                       .arg(QLatin1String(theCommand.myName))
                       .arg(theCommand.myWords)
                       .arg(words);
    return words == theCommand.myWords;
}

bool readCommand(const QCommandLineParser& theParser, VelshopArguments& theArguments, QString& theError)
{
    theArguments.myCommand = theParser.positionalArguments().value(0);
    for (const Command& command : commands())
        if (theArguments.myCommand == QLatin1String(command.myName))
            return takes(command, theParser, theError) && command.myRead(theParser, theArguments, theError);
    theError = theArguments.myCommand.isEmpty()
                   ? QStringLiteral("no command given, see velshop --help")
                   : QStringLiteral("unknown command \"%1\", see velshop --help").arg(theArguments.myCommand);
    return false;
}

/// A word like "-5" would be taken for an option and called unknown.
bool hasNegativeWord(const QStringList& theCommandLine, QString& theError)
{
    static const QRegularExpression negative(QStringLiteral("^-\\d+$"));
    const int end = theCommandLine.indexOf(QStringLiteral("--"));
    const int index = theCommandLine.indexOf(negative);
    if (index < 0 || (end >= 0 && end < index))
        return false;
    theError = QStringLiteral("a number below 0 has to stand behind \"--\": %1").arg(theCommandLine.at(index));
    return true;
}

bool readAccount(const QCommandLineParser& theParser, VelshopArguments& theArguments, QString& theError)
{
    theArguments.myAccount = theParser.value(STR_ACCOUNT);
    if (theArguments.myAccount.isEmpty())
        theError = QStringLiteral("--account names no folder");
    return !theArguments.myAccount.isEmpty();
}

bool readLanguage(const QCommandLineParser& theParser, VelshopArguments& theArguments, QString& theError)
{
    theArguments.myLanguage = theParser.value(STR_LANGUAGE);
    const bool isKnown =
        theArguments.myLanguage == QLatin1String("de") || theArguments.myLanguage == QLatin1String("en");
    if (!isKnown)
        theError = QStringLiteral("--language must be de or en, not \"%1\"").arg(theArguments.myLanguage);
    return isKnown;
}

} // namespace

bool readArguments(const QStringList& theCommandLine, VelshopArguments& theArguments, QString& theError)
{
    QCommandLineParser parser;
    declareOptions(parser);
    if (hasNegativeWord(theCommandLine, theError))
        return false;
    if (!parser.parse(theCommandLine)) {
        theError = parser.errorText();
        return false;
    }
    if (parser.isSet(STR_HELP))
        parser.showHelp();
    if (parser.isSet(QStringLiteral("version")))
        parser.showVersion();
    theArguments.myIsJson = parser.isSet(STR_JSON);
    return readAccount(parser, theArguments, theError) && readLanguage(parser, theArguments, theError) &&
           readCommand(parser, theArguments, theError);
}
