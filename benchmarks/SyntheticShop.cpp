#include "benchmarks/SyntheticShop.h"

#include <QPair>
#include <QVector>
#include <QXmlStreamWriter>

namespace {

using Attributes = QVector<QPair<const char*, QString>>;

const int ID_SPREAD = 20; // keeps the ids of sizes apart that differ by a twentieth or more
const int BOOK_ID_WITHOUT_ADD_ONS = 9210;
const int BOOKS = 2;
const int BOOK_PARTS = 5;
const int FIRST_BOOK_PART_ID = 9950000;

class PriceListWriter
{
public:
    explicit PriceListWriter(QByteArray* theTarget) : myXml(theTarget)
    {
        myXml.setAutoFormatting(true);
        myXml.setAutoFormattingIndent(2);
        myXml.writeStartDocument();
    }

    void start(const char* theTag, const Attributes& theAttributes = Attributes())
    {
        myXml.writeStartElement(QLatin1String(theTag));
        for (const auto& attribute : theAttributes)
            myXml.writeAttribute(QLatin1String(attribute.first), attribute.second);
    }
    void end() { myXml.writeEndElement(); }
    void empty(const char* theTag, const Attributes& theAttributes)
    {
        start(theTag, theAttributes);
        end();
    }
    void text(const char* theTag, const QString& theText) { myXml.writeTextElement(QLatin1String(theTag), theText); }

    void price(char theLetter, int theLevel, int theQuantity, int thePrice, const Attributes& theFurther = Attributes())
    {
        Attributes attributes{{"type", QString(QLatin1Char(theLetter))}};
        if (theLevel > 0) {
            attributes.append({"level", QString::number(theLevel)});
            attributes.append({"quantity", QString::number(theQuantity)});
        }
        attributes.append({"price", QString::number(thePrice)});
        empty("price", attributes + theFurther);
    }

private:
    QXmlStreamWriter myXml;
};

void writeLines(PriceListWriter& theWriter, const QString& theHead, const QStringList& theLines)
{
    theWriter.start("order_txt_lines", {{"head", theHead}});
    for (const QString& line : theLines)
        theWriter.text("line", line);
    theWriter.end();
}

void writeShippingTimes(PriceListWriter& theWriter)
{
    theWriter.start("shipping_times");
    theWriter.empty(
        "shipping_time",
        {{"days", QStringLiteral("2-3")}, {"delivery_type", QStringLiteral("0")}, {"express", QStringLiteral("0")}});
    theWriter.empty(
        "shipping_time",
        {{"days", QStringLiteral("3-5")}, {"delivery_type", QStringLiteral("1")}, {"express", QStringLiteral("0")}});
    theWriter.end();
}

void writeLadder(PriceListWriter& theWriter, int thePrice, const Attributes& theFurther)
{
    theWriter.price('B', 1, 25, thePrice * 9 / 10, theFurther);
    theWriter.price('B', 2, 50, thePrice * 8 / 10, theFurther);
    theWriter.price('B', 3, 100, thePrice * 7 / 10, theFurther);
}

/// Each hundredth article is a package that makes shipping free; other packages don't, or hardly any bill would pay it.
const char* packageLetters(int theNumber)
{
    return theNumber % 100 == 7 ? "Pp" : "Ll";
}

/// Five kinds of ten are plain ladders, two differ by delivery type, one is a package, one a running offer, one has a
/// base price alone.
void writePrices(PriceListWriter& theWriter, int theNumber)
{
    const int kind = theNumber % KINDS;
    const int price = 10 + theNumber % 90;
    const Attributes pickup{{"input_source", QStringLiteral("0")}, {"delivery_type", QStringLiteral("0")}};
    const Attributes mail{{"input_source", QStringLiteral("0")}, {"delivery_type", QStringLiteral("1")}};
    const Attributes offer{{"non_offer_price", QString::number(price + 50)},
                           {"end_offer_date", QStringLiteral("2099-12-31T23:59:59")}};
    const Attributes transfer{{"transfer_base_price", QString::number(390 + 10 * kind)},
                              {"transfer_unit_price", QString::number(50 + kind)}};
    theWriter.start("base_prices");
    if (kind == 5 || kind == 6) {
        theWriter.price('B', 0, 0, price, transfer + pickup);
        theWriter.price('B', 0, 0, price + 10, transfer + mail);
    } else {
        theWriter.price('B', 0, 0, price, kind == KIND_OFFER ? transfer + offer : transfer);
    }
    theWriter.end();
    if (kind == 9)
        return;
    theWriter.start("discount_prices");
    if (kind == 5 || kind == 6) {
        writeLadder(theWriter, price, pickup);
        writeLadder(theWriter, price + 10, mail);
    } else if (kind == 7) {
        const char* letters = packageLetters(theNumber);
        theWriter.price(letters[0], 1, 10, price * 8);
        theWriter.price(letters[0], 2, 51, price * 38);
        theWriter.price(letters[1], 3, 101, price * 7 / 10);
    } else {
        writeLadder(theWriter, price, kind == KIND_OFFER ? offer : Attributes());
    }
    theWriter.end();
}

void writeArticle(PriceListWriter& theWriter, int theFirstId, int theNumber)
{
    const int kind = theNumber % KINDS;
    const bool isGift = kind == 4 || kind == 9;
    theWriter.start("article",
                    {{"id", QString::number(theFirstId + theNumber)},
                     {"name", QStringLiteral("%1x15 Artikel %2").arg(9 + kind).arg(theNumber)},
                     {"editor_name", QStringLiteral("Print %1 x 15 cm, no. %2").arg(9 + kind).arg(theNumber)},
                     {"group", QString::number(kind % 7 + 1)},
                     {"arrangement", isGift ? QStringLiteral("gift") : QStringLiteral("trivial")}});
    theWriter.empty("size", {{"width", QStringLiteral("152")},
                             {"height", QStringLiteral("102")},
                             {"dpi", QStringLiteral("300")},
                             {"dpi_green", QStringLiteral("200")},
                             {"dpi_yellow", QStringLiteral("120")}});
    writeLines(theWriter, QStringLiteral("[%1x15]").arg(9 + kind),
               {isGift ? QStringLiteral("TYPE=LFP101") : QStringLiteral("SALESLINE=3"), QStringLiteral("FINISH=GLOSSY"),
                QStringLiteral("BORDER=1")});
    writeShippingTimes(theWriter);
    writePrices(theWriter, theNumber);
    theWriter.end();
}

/// A book of 26 to 98 pages, and a second one that no add-on fits.
void writeBook(PriceListWriter& theWriter, int theId)
{
    theWriter.start("article", {{"id", QString::number(theId)},
                                {"name", QStringLiteral("Fotobuch %1").arg(theId)},
                                {"editor_name", QStringLiteral("Photo book no. %1").arg(theId)},
                                {"group", QStringLiteral("4")},
                                {"arrangement", QStringLiteral("photobook")},
                                {"min_pages", QStringLiteral("26")},
                                {"max_pages", QStringLiteral("98")},
                                {"page_step", QStringLiteral("8")}});
    writeLines(theWriter, QStringLiteral("[BOOK]"), {QStringLiteral("TYPE=ALB8")});
    theWriter.start("base_prices");
    theWriter.price('B', 0, 0, 2795);
    theWriter.end();
    theWriter.end();
}

struct AddOn
{
    int myId;
    const char* myHead;
    const char* myClass;
    char myLetter;
    int myPrice;
    int myFirstLink;
    int myLinks;
    int myLinkStep;
};

/// Three levels 25 pieces apart, of which only a model that inherits the level makes use without such a quantity.
void writeAddOn(PriceListWriter& theWriter, const AddOn& theAddOn)
{
    const int number = theAddOn.myId % 10000; // short, and so of different lengths
    theWriter.start("add_on", {{"id", QString::number(theAddOn.myId)},
                               {"name", QStringLiteral("Zubehör %1").arg(number)},
                               {"editor_name", QStringLiteral("Accessory no. %1").arg(number)},
                               {"group", QStringLiteral("7")},
                               {"product_class", QLatin1String(theAddOn.myClass)}});
    writeLines(theWriter, QLatin1String(theAddOn.myHead), {QStringLiteral("KIND=ACCESSORY")});
    theWriter.start("base_prices");
    for (int level = 0; level < 3; ++level)
        theWriter.price(theAddOn.myLetter, level, level * 25, theAddOn.myPrice - 20 * level);
    theWriter.end();
    theWriter.start("linked_articles");
    for (int link = 0; link < theAddOn.myLinks; ++link)
        theWriter.empty("linked_article", {{"id", QString::number(theAddOn.myFirstLink + link * theAddOn.myLinkStep)}});
    theWriter.end();
    theWriter.end();
}

/// Those of a few articles, those of a tenth of the list, and those that a book is composed with.
void writeAddOns(PriceListWriter& theWriter, int theArticleCount)
{
    for (int number = 0; number < theArticleCount / ARTICLES_PER_ADD_ON; ++number)
        writeAddOn(theWriter, {firstAddOnId(theArticleCount) + number, "[ACCESSORY]", "GPT1", 'I', 390,
                               firstArticleId(theArticleCount) + number * ARTICLES_PER_ADD_ON, ARTICLES_PER_ADD_ON, 1});
    for (int number = 0; number < WIDE_ADD_ONS; ++number)
        writeAddOn(theWriter, {firstWideAddOnId(theArticleCount) + number, "[ACCESSORY]", "WH2", 'I', 490,
                               firstArticleId(theArticleCount) + number, theArticleCount / KINDS, KINDS});
    writeAddOn(theWriter, {FIRST_BOOK_PART_ID, "[PAGES]", "PAG1", 'I', 249, BOOK_ID, 1, 1});
    writeAddOn(theWriter, {FIRST_BOOK_PART_ID + 1, "[MAP]", "MAP1", 'B', 150, BOOK_ID, 1, 1});
    writeAddOn(theWriter, {FIRST_BOOK_PART_ID + 2, "[VIDEO]", "VDO1", 'B', 99, BOOK_ID, 1, 1});
    writeAddOn(theWriter, {FIRST_BOOK_PART_ID + 3, "[CONTENT]", "100", 'I', 60, BOOK_ID, 1, 1});
    writeAddOn(theWriter, {FIRST_BOOK_PART_ID + 4, "[CONTENT]", "200", 'I', 80, BOOK_ID, 1, 1});
}

void startTransfer(PriceListWriter& theWriter, int theGroup, int theModel)
{
    theWriter.start("transfer", {{"id", QString::number(11000 + theGroup)},
                                 {"group", QString::number(theGroup)},
                                 {"model", QString::number(theModel)}});
    theWriter.start("base_prices");
}

void endTransfer(PriceListWriter& theWriter)
{
    theWriter.end();
    theWriter.end();
}

/// The shipping groups 1 and 3 under transfer model 1, by quantity and by bill sum, and 2 under transfer model 2.
void writeTransfers(PriceListWriter& theWriter)
{
    theWriter.start("transfers");
    startTransfer(theWriter, 1, 1);
    theWriter.price('F', 0, 0, 295);
    theWriter.price('F', 1, 100, 495);
    endTransfer(theWriter);
    startTransfer(theWriter, 2, 2);
    theWriter.price('F', 0, 0, 0);
    endTransfer(theWriter);
    startTransfer(theWriter, 3, 1);
    theWriter.price('F', 0, 0, 395);
    theWriter.price('Z', 1, 30000, 195);
    theWriter.price('Z', 2, 60000, 0);
    endTransfer(theWriter);
    theWriter.end();
}

/// Invoice, and the faster of the express types for the shipping group 1.
void writeFees(PriceListWriter& theWriter)
{
    theWriter.start("paymethod_fees");
    theWriter.start("paymethod_fee", {{"id", QStringLiteral("12003")}, {"pay_method_id", QStringLiteral("3")}});
    theWriter.start("base_prices");
    theWriter.price('B', 0, 0, 95);
    theWriter.end();
    theWriter.end();
    theWriter.end();
    theWriter.start("express_fees");
    theWriter.start(
        "express_fee",
        {{"id", QStringLiteral("13041")}, {"group", QStringLiteral("1")}, {"express", QStringLiteral("1")}});
    theWriter.start("base_prices");
    theWriter.price('X', 0, 0, 490);
    theWriter.price('X', 1, 50, 790);
    theWriter.end();
    theWriter.end();
    theWriter.end();
}

} // namespace

QByteArray syntheticPriceList(int theArticleCount)
{
    QByteArray bytes;
    PriceListWriter writer(&bytes);
    writer.start("pricelist");
    writer.start("articles");
    for (int number = 0; number < theArticleCount; ++number)
        writeArticle(writer, firstArticleId(theArticleCount), number);
    writeBook(writer, BOOK_ID);
    writeBook(writer, BOOK_ID_WITHOUT_ADD_ONS);
    writer.end();
    writer.start("add_ons");
    writeAddOns(writer, theArticleCount);
    writer.end();
    writeTransfers(writer);
    writeFees(writer);
    writer.end();
    return bytes;
}

int syntheticProductCount(int theArticleCount)
{
    return theArticleCount + BOOKS + theArticleCount / ARTICLES_PER_ADD_ON + WIDE_ADD_ONS + BOOK_PARTS;
}

int firstArticleId(int theArticleCount)
{
    return 1000000 + ID_SPREAD * theArticleCount;
}

int firstAddOnId(int theArticleCount)
{
    return 5000000 + ID_SPREAD * theArticleCount;
}

int firstWideAddOnId(int theArticleCount)
{
    return 9000000 + theArticleCount;
}
