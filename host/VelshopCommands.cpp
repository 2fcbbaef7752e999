#include "host/VelshopCommands.h"

#include "host/VelshopAudit.h"
#include "host/VelshopBands.h"
#include "host/VelshopBill.h"
#include "host/VelshopCurve.h"
#include "host/VelshopDiff.h"
#include "host/VelshopDiffSide.h"
#include "host/VelshopExitCode.h"
#include "host/VelshopExplain.h"
#include "host/VelshopGaps.h"
#include "host/VelshopList.h"
#include "host/VelshopOptions.h"
#include "host/VelshopPrice.h"
#include "host/VelshopReport.h"
#include "host/VelshopSchema.h"
#include "host/VelshopShop.h"
#include "host/VelshopTypes.h"
#include "host/VelshopUnit.h"
#include "host/VelshopWhatIf.h"

using namespace VelshopOptions;

namespace {

const QStringList& shared()
{
    static const QStringList options{STR_ACCOUNT, STR_JSON, STR_LANGUAGE};
    return options;
}

/// Those that velshop starts itself with, and nobody else.
const QVector<VelshopCommand>& internal()
{
    static const QVector<VelshopCommand> commands{{"snapshot",
                                                   "SHOP",
                                                   {},
                                                   {STR_CART},
                                                   shared(),
                                                   OPENS_NO_ACCOUNT,
                                                   "one side of diff, to be read by velshop alone",
                                                   "",
                                                   "",
                                                   readAndRun(readSnapshotArguments, takeSnapshot)}};
    return commands;
}

} // namespace

const QVector<VelshopCommand>& VelshopCommands::all()
{
    static const QVector<VelshopCommand> commands{
        {"list",
         "",
         {},
         {STR_GROUP, STR_SOURCE, STR_DELIVERY},
         shared(),
         OPENS_ACCOUNT,
         "articles with id, name, shipping group, type, price of a piece, and whether they can be ordered",
         "Whether an article can be ordered at all, and whether by the chosen order way, which is the shop's starting "
         "choice where none is named; its price is the one of that way. The articles are sorted by shipping group, and "
         "within it "
         "stand as in the price list.",
         "velshop list --group 23",
         readAndRun(readListArguments, listArticles)},
        {"price",
         "ARTICLE COUNT",
         {},
         {STR_SOURCE, STR_DELIVERY},
         shared(),
         OPENS_ACCOUNT,
         "what so many pieces cost, with the discount model, level and band of each line",
         "Where one half of the order way is not named, that of the shop's starting choice is taken. ARTICLE may be "
         "that of a fee, too, which is asked with a bill sum of 1 cent.",
         "velshop price 131 120 --source CD",
         readAndRun(readPriceArguments, priceArticle)},
        {"bands",
         "GROUP",
         {},
         {STR_SOURCE, STR_DELIVERY},
         shared(),
         OPENS_ACCOUNT,
         "the discount bands of a shipping group and its fees, with the price of each product in each band",
         "Bands and prices are those of the shop's starting choice where no order way is named. Behind the products "
         "stand the fees that a bill of the group may be charged: shipping, payments and express.",
         "velshop bands 1 --source CD",
         readAndRun(readBandsArguments, showBands)},
        {"unit",
         "ARTICLE",
         {STR_PAGES},
         {STR_MAPS, STR_VIDEOS, STR_TEMPLATE},
         shared(),
         OPENS_ACCOUNT,
         "the unit price of a composed book or calendar, part by part",
         "Each page beyond the least, each map, video and template costs an add-on of the product.",
         "velshop unit 9210 --pages 40 --videos 1 --template 12=3",
         readAndRun(readUnitArguments, priceUnit)},
        {"bill",
         "CART",
         {},
         VelshopWhatIf::options() + QStringList{STR_HTML, STR_DISCOUNTS, STR_ORDER_TEXT},
         shared(),
         OPENS_ACCOUNT,
         "the bills of a cart, one for each shipping group, and the order's totals",
         "CART is a JSON file such as carts/showcase.json of the sample shop, or a pipe; \"-\" is standard input. It "
         "has "
         "\"items\", each with \"article\" and \"count\", for a book or calendar also \"pages\", \"maps\", \"videos\" "
         "and "
         "\"templates\" (uses by price class) of one piece; \"source\" with \"delivery\" and \"payment\" (the starting "
         "choice "
         "without them), \"express\" (\"0\", \"1\" or \"2\"), and \"coupon\" (a file, relative to the cart) with "
         "\"couponId\".\n"
         "With the options of a choice the cart is billed as if it were ordered so; without --payment its payment "
         "stays "
         "where the order way permits it.\n"
         "An order that can't be placed is billed as far as it goes, and has no description of its discounts.\n"
         "A regular FILE is replaced as a whole or stays as it was; a device or a pipe is written directly. A FILE "
         "that is "
         "also an input or the other output is refused.",
         "velshop bill cart.json --html bill.html",
         readAndRun(readBillArguments, billCart)},
        {"curve",
         "[ARTICLE]",
         {},
         {STR_SOURCE, STR_DELIVERY, STR_TO, STR_LEVEL, STR_BY, STR_SVG, STR_DIPS, STR_GROUP},
         shared(),
         OPENS_ACCOUNT,
         "what every quantity of an article costs, and where more pieces cost less",
         "A line for each run of quantities of one discount model, level and package, then a plot of the totals. "
         "Articles, add-ons and fees have curves. With --dips and without an article: all quantities of the shop, or "
         "of a shipping group, beyond which a larger one costs less, by every order way that is offered.",
         "velshop curve 131 --to 200 --svg curve.svg",
         readAndRun(readCurveArguments, drawCurve)},
        {"report",
         "",
         {STR_HTML},
         {},
         shared(),
         OPENS_ACCOUNT,
         "the whole shop as a page: conditions, articles with their prices, fees, gaps, findings",
         "For the people who own the shop, to be read in a browser and to be printed. One file, which loads nothing.",
         "velshop report --html shop.html",
         readAndRun(readReportArguments, reportShop)},
        {"explain",
         "CART|ARTICLE [COUNT]",
         {},
         VelshopWhatIf::options() + QStringList{STR_LEVEL, STR_ALL, STR_COMPARE, STR_HTML},
         shared(),
         OPENS_ACCOUNT,
         "why a cart, or so many pieces of an article, cost what they do, down to the places in the documents",
         "For each amount it names the discount model that was taken and why, the band that was reached and how far "
         "the "
         "next one is; for a missing price what would have one. Each place is told as file:line:column. With the "
         "options of a choice the cart is explained as if it were ordered so.",
         "velshop explain cart.json --source CD --compare",
         readAndRun(readExplainArguments, explain)},
        {"gaps",
         "",
         {},
         {STR_GROUP, STR_HTML},
         shared(),
         OPENS_ACCOUNT,
         "what is sold by which order way, and what isn't: every article and fee by every way",
         "The order ways are those of the ordering details, and in brackets others by which an article has a price. A "
         "price below 0 is none, and quantities go up to 100000. The page of --html is a matrix with filters, in one "
         "file.",
         "velshop gaps --group 4 --html gaps.html",
         readAndRun(readGapsArguments, showGaps)},
        {"shop",
         "",
         {},
         {},
         shared(),
         OPENS_ACCOUNT,
         "the conditions: order ways, payments, currencies, shipping groups and the like",
         "Everything that the ordering details say, and whether the price list is older than its shipping groups.",
         "velshop shop --account shop-small",
         justRun(showShop)},
        {"types",
         "",
         {},
         {},
         shared(),
         OPENS_ACCOUNT,
         "product types with their products, scales and page ranges",
         "The types are those of the products that a customer composes: books, calendars, cards and gifts.",
         "velshop types --json",
         justRun(listTypes)},
        {"audit",
         "",
         {},
         {STR_SARIF, STR_HTML, STR_WATCH, STR_RULES},
         {STR_ACCOUNT, STR_JSON},
         OPENS_NO_ACCOUNT,
         "what is wrong in the documents of a shop, with file, line and column",
         "Errors cost a price or an article, warnings tell what isn't read as it is written, notes are worth knowing. "
         "The library takes whatever stands in the documents; this tells before a customer sees it.\n"
         "A comment \"audit: allow RULE because ...\" in front of an element takes that rule's findings away.\n"
         "The exit code is 0 without errors and warnings, 1 with some, and 2 when a document can't be read.",
         "velshop audit --account shop-small",
         readAndRun(readAuditArguments, auditAccount)},
        {"diff",
         "OLD NEW",
         {},
         {STR_CART, STR_HTML},
         shared(),
         OPENS_NO_ACCOUNT,
         "what changed from one price list or account to another, by effect",
         "OLD and NEW are folders of accounts, or price lists beside the other documents of --account. Told are "
         "articles, "
         "add-ons and fees that came or went, the quantities up to 100,000 whose total changed, every other field that "
         "is read otherwise, the conditions of the shop, and what carts come to. What is written another way and read "
         "alike is no difference.\n"
         "The exit code is 0 without a difference, 1 with one, and 2 when a document can't be read.",
         "velshop diff shop shop-small --cart cart.json",
         readAndRun(readDiffArguments, compareShops)},
        {"schema",
         "DIR",
         {},
         {},
         {STR_JSON},
         OPENS_NO_ACCOUNT,
         "writes XML schemas of the documents, by which an editor completes names and shows what they mean",
         "The folder DIR is made if it isn't there. A document is checked by \"xmllint --noout --schema "
         "DIR/pricelist.xsd pricelist.xml\".",
         "velshop schema schemas",
         readAndRun(readSchemaArguments, writeSchemas)},
    };
    return commands;
}

const VelshopCommand* VelshopCommands::find(const QString& theName)
{
    for (const QVector<VelshopCommand>* commands : {&all(), &internal()})
        for (const VelshopCommand& command : *commands)
            if (theName == QLatin1String(command.myName))
                return &command;
    return nullptr;
}

QString VelshopCommands::description()
{
    return QStringLiteral("The order desk of a shop for photo products: it reads the shop's price list and ordering "
                          "details, and tells prices, discounts and bills.");
}

const QVector<VelshopCommands::ExitMeaning>& VelshopCommands::exitMeanings()
{
    static const QVector<ExitMeaning> meanings{
        {EXIT_DONE, "done"},
        {EXIT_NO_PRICE, "there is no price, the order can't be placed, the audit found something, or shops differ"},
        {EXIT_BAD_INPUT, "a wrong argument or an unreadable document"}};
    return meanings;
}
