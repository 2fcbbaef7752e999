#include "host/VelshopArguments.h"

#include "host/VelshopWords.h"

#include <QCommandLineParser>

namespace {

const QString STR_LIST = QStringLiteral("list");
const QString STR_PRICE = QStringLiteral("price");
const QString STR_ACCOUNT = QStringLiteral("account");
const QString STR_JSON = QStringLiteral("json");
const QString STR_GROUP = QStringLiteral("group");
const QString STR_SOURCE = QStringLiteral("source");
const QString STR_DELIVERY = QStringLiteral("delivery");

const QString STR_DESCRIPTION =
    QStringLiteral("The order desk of a shop for photo products.\n\n"
                   "  velshop list [--group ID]\n"
                   "      articles with id, name, shipping group, type, and whether they can be ordered\n"
                   "  velshop price ARTICLE COUNT [--source NET|CD|KIOSK] [--delivery POS|MAIL|ONSITE]\n"
                   "      what so many pieces cost, with the discount model, level and band of each line\n\n"
                   "Exit codes: 0 done, 1 there is no price, 2 a wrong argument or an unreadable document.");

void declareOptions(QCommandLineParser& theParser)
{
    theParser.setApplicationDescription(STR_DESCRIPTION);
    theParser.addHelpOption();
    theParser.addVersionOption();
    theParser.addPositionalArgument(QStringLiteral("command"), QStringLiteral("list or price"));
    theParser.addOptions({
        {STR_ACCOUNT, QStringLiteral("Folder of the key account with pricelist.xml and orderingdetails.xml."),
         QStringLiteral("DIR"), QStringLiteral(VELSHOP_SAMPLE_ACCOUNT)},
        {STR_JSON, QStringLiteral("Print JSON.")},
        {STR_GROUP, QStringLiteral("list: this shipping group only."), QStringLiteral("ID")},
        {STR_SOURCE, QStringLiteral("price: how the order comes in, NET (default), CD or KIOSK."),
         QStringLiteral("SOURCE")},
        {STR_DELIVERY,
         QStringLiteral(
             "price: how the goods go out, POS, MAIL (default) or ONSITE (default and only way of a kiosk)."),
         QStringLiteral("DELIVERY")},
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

bool readOrderSource(const QCommandLineParser& theParser, VelOrderSource& theSource, QString& theError)
{
    VelInputSource inputSource = INPUT_SOURCE_NET;
    if (theParser.isSet(STR_SOURCE) && !VelshopWords::readInputSource(theParser.value(STR_SOURCE), inputSource)) {
        theError = QStringLiteral("--source must be NET, CD or KIOSK, not \"%1\"").arg(theParser.value(STR_SOURCE));
        return false;
    }
    VelDeliveryType deliveryType = inputSource == INPUT_SOURCE_KIOSK ? DELIVERY_TYPE_ON_SITE : DELIVERY_TYPE_MAILORDER;
    if (theParser.isSet(STR_DELIVERY) && !VelshopWords::readDeliveryType(theParser.value(STR_DELIVERY), deliveryType)) {
        theError =
            QStringLiteral("--delivery must be POS, MAIL or ONSITE, not \"%1\"").arg(theParser.value(STR_DELIVERY));
        return false;
    }
    theSource = VelOrderSource(inputSource, deliveryType);
    if (!theSource.isValid())
        theError = QStringLiteral("KIOSK and ONSITE go together and with nothing else");
    return theSource.isValid();
}

bool readPriceArguments(const QCommandLineParser& theParser, VelshopArguments& theArguments, QString& theError)
{
    const QStringList words = theParser.positionalArguments();
    if (words.size() != 3) {
        theError = QStringLiteral("price takes an article and a count, see velshop --help");
        return false;
    }
    return readNumber(words.at(1), QStringLiteral("ARTICLE"), 0, theArguments.myArticle, theError) &&
           readNumber(words.at(2), QStringLiteral("COUNT"), 1, theArguments.myCount, theError) &&
           readOrderSource(theParser, theArguments.mySource, theError);
}

bool readListArguments(const QCommandLineParser& theParser, VelshopArguments& theArguments, QString& theError)
{
    if (theParser.positionalArguments().size() != 1) {
        theError = QStringLiteral("list takes no arguments but options, see velshop --help");
        return false;
    }
    theArguments.myHasGroup = theParser.isSet(STR_GROUP);
    return !theArguments.myHasGroup ||
           readNumber(theParser.value(STR_GROUP), QStringLiteral("--group"), 0, theArguments.myGroup, theError);
}

/// An option that the command would ignore is an error, not a wish.
bool hasForeignOption(const QCommandLineParser& theParser, const QStringList& theForeignOptions, QString& theError)
{
    for (const QString& option : theForeignOptions) {
        if (!theParser.isSet(option))
            continue;
        theError = QStringLiteral("--%1 does not belong to this command").arg(option);
        return true;
    }
    return false;
}

} // namespace

bool readArguments(const QStringList& theCommandLine, VelshopArguments& theArguments, QString& theError)
{
    QCommandLineParser parser;
    declareOptions(parser);
    if (!parser.parse(theCommandLine)) {
        theError = parser.errorText();
        return false;
    }
    if (parser.isSet(QStringLiteral("help")))
        parser.showHelp();
    if (parser.isSet(QStringLiteral("version")))
        parser.showVersion();

    theArguments.myCommand = parser.positionalArguments().value(0);
    theArguments.myAccount = parser.value(STR_ACCOUNT);
    theArguments.myIsJson = parser.isSet(STR_JSON);
    if (theArguments.myCommand == STR_LIST)
        return !hasForeignOption(parser, {STR_SOURCE, STR_DELIVERY}, theError) &&
               readListArguments(parser, theArguments, theError);
    if (theArguments.myCommand == STR_PRICE)
        return !hasForeignOption(parser, {STR_GROUP}, theError) && readPriceArguments(parser, theArguments, theError);
    theError = theArguments.myCommand.isEmpty()
                   ? QStringLiteral("no command given, see velshop --help")
                   : QStringLiteral("unknown command \"%1\", see velshop --help").arg(theArguments.myCommand);
    return false;
}
