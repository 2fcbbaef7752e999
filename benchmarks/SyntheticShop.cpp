#include "benchmarks/SyntheticShop.h"

#include <QPair>
#include <QVector>
#include <QXmlStreamWriter>

namespace {

using Attributes = QVector<QPair<const char*, QString>>;

const int ARTICLES_PER_ADD_ON = 20;
const int KINDS = 10;

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

    void price(const char* theType, int theLevel, int theQuantity, int thePrice,
               const Attributes& theFurther = Attributes())
    {
        Attributes attributes{{"type", QLatin1String(theType)}};
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
    theWriter.price("B", 1, 25, thePrice * 9 / 10, theFurther);
    theWriter.price("B", 2, 50, thePrice * 8 / 10, theFurther);
    theWriter.price("B", 3, 100, thePrice * 7 / 10, theFurther);
}

/// Five kinds of ten are plain ladders, two differ by delivery type, one is a package, one a running offer, one has a
/// base price alone.
void writePrices(PriceListWriter& theWriter, int theKind, int thePrice)
{
    const Attributes pickup{{"input_source", QStringLiteral("0")}, {"delivery_type", QStringLiteral("0")}};
    const Attributes mail{{"input_source", QStringLiteral("0")}, {"delivery_type", QStringLiteral("1")}};
    const Attributes offer{{"non_offer_price", QString::number(thePrice + 50)},
                           {"end_offer_date", QStringLiteral("2099-12-31T23:59:59")}};
    const Attributes transfer{{"transfer_base_price", QStringLiteral("390")},
                              {"transfer_unit_price", QStringLiteral("50")}};
    theWriter.start("base_prices");
    if (theKind == 5 || theKind == 6) {
        theWriter.price("B", 0, 0, thePrice, transfer + pickup);
        theWriter.price("B", 0, 0, thePrice + 10, transfer + mail);
    } else {
        theWriter.price("B", 0, 0, thePrice, theKind == 8 ? transfer + offer : transfer);
    }
    theWriter.end();
    if (theKind == 9)
        return;
    theWriter.start("discount_prices");
    if (theKind == 5 || theKind == 6) {
        writeLadder(theWriter, thePrice, pickup);
        writeLadder(theWriter, thePrice + 10, mail);
    } else if (theKind == 7) {
        theWriter.price("P", 1, 10, thePrice * 8);
        theWriter.price("P", 2, 51, thePrice * 38);
        theWriter.price("p", 3, 101, thePrice * 7 / 10);
    } else {
        writeLadder(theWriter, thePrice, Attributes());
    }
    theWriter.end();
}

void writeArticle(PriceListWriter& theWriter, int theNumber)
{
    const int kind = theNumber % KINDS;
    const bool isGift = kind == 4 || kind == 9;
    theWriter.start("article",
                    {{"id", QString::number(FIRST_ARTICLE_ID + theNumber)},
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
    writePrices(theWriter, kind, 10 + theNumber % 90);
    theWriter.end();
}

void writeAddOn(PriceListWriter& theWriter, int theNumber)
{
    theWriter.start("add_on", {{"id", QString::number(FIRST_ADD_ON_ID + theNumber)},
                               {"name", QStringLiteral("Zubehör %1").arg(theNumber)},
                               {"editor_name", QStringLiteral("Accessory no. %1").arg(theNumber)},
                               {"group", QStringLiteral("7")},
                               {"product_class", QStringLiteral("GPT1")}});
    writeLines(theWriter, QStringLiteral("[ACCESSORY]"), {QStringLiteral("KIND=GIFTBOX")});
    theWriter.start("base_prices");
    for (int level = 0; level < 3; ++level)
        theWriter.price("I", level, level * 25, 390 - 20 * level);
    theWriter.end();
    theWriter.start("linked_articles");
    for (int link = 0; link < ARTICLES_PER_ADD_ON; ++link)
        theWriter.empty("linked_article",
                        {{"id", QString::number(FIRST_ARTICLE_ID + theNumber * ARTICLES_PER_ADD_ON + link)}});
    theWriter.end();
    theWriter.end();
}

/// The shipping groups 1 and 2: by quantity under transfer model 1, and by the products under transfer model 2.
void writeTransfers(PriceListWriter& theWriter)
{
    theWriter.start("transfers");
    theWriter.start("transfer", {{"id", QStringLiteral("11001")}, {"group", QStringLiteral("1")}});
    theWriter.start("base_prices");
    theWriter.price("F", 0, 0, 295);
    theWriter.price("F", 1, 100, 495);
    theWriter.end();
    theWriter.end();
    theWriter.start("transfer",
                    {{"id", QStringLiteral("11002")}, {"group", QStringLiteral("2")}, {"model", QStringLiteral("2")}});
    theWriter.start("base_prices");
    theWriter.price("F", 0, 0, 0);
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
        writeArticle(writer, number);
    writer.end();
    writer.start("add_ons");
    for (int number = 0; number < theArticleCount / ARTICLES_PER_ADD_ON; ++number)
        writeAddOn(writer, number);
    writer.end();
    writeTransfers(writer);
    writer.end();
    return bytes;
}
