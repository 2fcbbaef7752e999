#ifndef NASTYSHOP_H
#define NASTYSHOP_H

#include <QMap>
#include <QStringList>

#include <random>

using Attributes = QMap<QString, QString>;

/// Draws without the distributions of the standard library, which differ between platforms. No expression may draw
/// twice, since the order would be the compiler's.
class Dice
{
public:
    explicit Dice(unsigned theSeed) : myEngine(theSeed) {}
    int below(int theBound) { return static_cast<int>(myEngine() % static_cast<unsigned>(theBound)); }
    bool oneIn(int theBound) { return below(theBound) == 0; }

    /// One of the words between "|".
    QString word(const QString& theWords)
    {
        const QStringList words = theWords.split('|');
        return words.at(below(words.size()));
    }

    /// One of the words for the attribute; "_" leaves it out.
    void draw(Attributes& theAttributes, const char* theName, const QString& theWords)
    {
        const QString drawn = word(theWords);
        if (drawn != "_")
            theAttributes.insert(theName, drawn);
    }

private:
    std::mt19937 myEngine;
};

/// Anything that has prices: an article, an add-on or a fee. Prices are as a document writes them, so that attributes
/// may be missing or senseless.
struct ShopArticle
{
    QString tag;
    Attributes attributes;
    QList<int> links; ///< of an add-on: the articles that it goes with
    QList<Attributes> prices;

    int id() const { return attributes.value("id").toInt(); }
    bool isFee() const { return links.isEmpty() && !attributes.contains("arrangement"); }

    /// The counts at which the price may change, and a few that nobody should order.
    QList<int> counts() const
    {
        QList<int> counts = {0, 1, 2, 7, -1, -3, 1000000, 2147483647};
        for (const Attributes& price : prices)
            for (const unsigned shift : {~0U, 0U, 1U})
                counts += static_cast<int>(static_cast<unsigned>(price.value("quantity").toInt()) + shift);
        return counts;
    }

    static QString written(const Attributes& theAttributes)
    {
        QString text;
        for (const QString& name : theAttributes.keys())
            text += QString(" %1='%2'").arg(name, theAttributes.value(name));
        return text;
    }

    QString xml() const
    {
        QString children = tag == "article" ? "<order_txt_lines><l>TYPE=ALB8</l></order_txt_lines>" : "";
        for (const int link : links)
            children += QString("<linked_article id='%1'/>").arg(link);
        if (!links.isEmpty())
            children = "<linked_articles>" + children + "</linked_articles>";
        children += "<base_prices>";
        for (const Attributes& price : prices)
            children += "<e" + written(price) + "/>";
        children += "</base_prices><shipping_times>"
                    "<shipping_time days='3' delivery_type='0' express='1'/>"
                    "<shipping_time days='3' delivery_type='1' express='1'/></shipping_times>";
        return QString("<%1%2>%3</%1>\n").arg(tag, written(attributes), children);
    }
};

/// A shop, an order there, and a coupon.
class NastyShop
{
public:
    explicit NastyShop(unsigned theSeed) : myDice(theSeed)
    {
        inputSource = myDice.word("0|0|0|0|0|1|1|4|-1").toInt();
        deliveryType = myDice.word("1|1|1|1|1|0|0|2|-1").toInt();
        group = myDice.word("1|1|2|9").toInt();
        payment = myDice.word("3|3|8|77").toInt();
        expressType = myDice.word("2|2|1|3|0").toInt();
        const int linesLeftOut = myDice.word("1|2|5|5|5").toInt(); // one in so many
        for (ShopArticle article : allArticles())
            if (!myDice.oneIn(article.isFee() ? 2 : 4))
                add(article, linesLeftOut);
        myDice.draw(coupon, "type", "value|percent|quantity");
        myDice.draw(coupon, "price", "-10|-30|-100|-100000");
        myDice.draw(coupon, "minimum_price", "_|500");
        myDice.draw(coupon, "free_quantity", "1|2");
    }

    /// Every article that a shop may have: the registry keeps the kind and the links of an id for ever.
    static QList<ShopArticle> allArticles()
    {
        return {{"article", {{"id", "3"}, {"arrangement", "trivial"}}, {}, {}},
                {"article", {{"id", "4"}, {"arrangement", "gift"}}, {}, {}},
                {"article", {{"id", "1"}, {"arrangement", "trivial"}}, {}, {}},
                {"article", {{"id", "5"}, {"arrangement", "card"}}, {}, {}},
                {"add_on", {{"id", "14"}, {"product_class", "A"}}, {99, 1, 5, 3}, {}},
                {"add_on", {{"id", "11"}, {"product_class", "A"}}, {13, 1}, {}},
                {"add_on", {{"id", "13"}, {"product_class", "A"}}, {13, 14, 4}, {}},
                {"transfer", {{"id", "51"}, {"group", "1"}}, {}, {}},
                {"transfer", {{"id", "52"}, {"group", "2"}}, {}, {}},
                {"paymethod_fee", {{"id", "61"}, {"pay_method_id", "3"}}, {}, {}},
                {"paymethod_fee", {{"id", "62"}, {"pay_method_id", "8"}}, {}, {}},
                {"express_fee", {{"id", "71"}, {"group", "1"}, {"express", "1"}}, {}, {}},
                {"express_fee", {{"id", "72"}, {"group", "2"}, {"express", "0"}}, {}, {}}};
    }

    /// Leaves out the n-th cart line, article, price or attribute of a price; false when there are fewer.
    bool leaveOut(int theNumber)
    {
        if (theNumber < cart.size())
            return cart.removeAt(theNumber), true;
        theNumber -= cart.size();
        for (int i = 0; i < articles.size(); ++i) {
            QList<Attributes>& prices = articles[i].prices;
            if (theNumber-- == 0)
                return articles.removeAt(i), true;
            for (int j = 0; j < prices.size(); ++j) {
                if (theNumber-- == 0)
                    return prices.removeAt(j), true;
                if (theNumber < prices[j].size())
                    return prices[j].remove(prices[j].keys().at(theNumber)), true;
                theNumber -= prices[j].size();
            }
        }
        return false;
    }

    QString xml() const
    {
        QMap<QString, QString> sections;
        for (const ShopArticle& article : articles)
            sections[article.tag + 's'] += article.xml();
        QString document;
        for (const QString& section : sections.keys())
            document += QString("<%1>\n%2</%1>\n").arg(section, sections.value(section));
        return "<pricelist>" + document + "</pricelist>";
    }

    QString couponXml() const
    {
        QString conditions;
        for (const int id : couponArticles)
            conditions += QString("<condition art_id='%1'/>").arg(id);
        return "<c><coupons><coupon" + ShopArticle::written(coupon) + ">" + conditions + "</coupon></coupons></c>";
    }

    QString text() const
    {
        QString order = QString("source %1/%2, group %3, payment %4, express type %5, cart");
        for (const int number : {inputSource, deliveryType, group, payment, expressType})
            order = order.arg(number);
        for (const auto& line : cart)
            order += QString(" %1x%2").arg(line.first).arg(line.second);
        return order + "\n" + couponXml() + "\n" + xml();
    }

    QList<ShopArticle> articles;
    QList<QPair<int, int>> cart; ///< articles and counts
    int inputSource;
    int deliveryType;
    int group;
    int payment;
    int expressType;
    Attributes coupon;
    QList<int> couponArticles;

private:
    void add(ShopArticle& theArticle, int theLinesLeftOut)
    {
        const QString ladders = theArticle.isFee() ? "|F|Z|X|I|P" : theArticle.tag == "add_on" ? "I|I|I|B" : "|P|P|L";
        addPrices(theArticle.prices, ladders);
        if (theArticle.tag == "transfer")
            myDice.draw(theArticle.attributes, "model", "_|1|2| 2|-1|2,x");
        if (myDice.oneIn(3))
            couponArticles += theArticle.id();
        const QList<int> counts = theArticle.counts();
        if (!theArticle.isFee() && !myDice.oneIn(theLinesLeftOut))
            cart += {theArticle.id(), counts.at(myDice.below(counts.size()))};
        articles.insert(myDice.below(articles.size() + 1), theArticle);
    }

    void addPrices(QList<Attributes>& thePrices, const QString& theLadders)
    {
        if (!myDice.oneIn(6))
            addPrice(thePrices, "|_|B", "_|0", "_|0", "100|120|200|350");
        for (int ladders = myDice.below(3); ladders > 0; --ladders)
            addLadder(thePrices, myDice.word(theLadders));
        for (int odd = myDice.oneIn(2) ? 0 : 1 + myDice.below(3); odd > 0; --odd)
            addPrice(thePrices, "_|_|B|b|P| P|p|L|l|F|Z|X|x|I|Q|B,L|F,L|I,L|I,X", "_|_|_|0|1|1|2|3|-1|2147483647|one",
                     "_|_|0|1|2|5|-1|-7|2147483647|-2147483648", "_|_|-1|0|1|-2|49|1073741824|2147483647|1,20");
        for (int last = myDice.oneIn(2) ? thePrices.size() - 1 : 0; last > 0; --last)
            thePrices.swapItemsAt(last, myDice.below(last + 1));
    }

    /// Bands of one model, with a gap now and then.
    void addLadder(QList<Attributes>& thePrices, const QString& theType)
    {
        const bool hasPackages = theType == "P" || theType == "L";
        int level = theType == "I" ? 0 : 1;
        int quantity = myDice.below(5);
        for (int rungs = 2 + myDice.below(3); rungs > 0; --rungs) {
            const bool isPackage = hasPackages && myDice.oneIn(2);
            const QString letter = hasPackages && !isPackage ? theType.toLower() : theType;
            addPrice(thePrices, letter, QString::number(level), QString::number(quantity),
                     isPackage ? "500|900|1300" : "0|30|49|77|100");
            level += myDice.oneIn(6) ? 2 : 1;
            quantity += (1 + myDice.below(6)) * (theType == "Z" ? 250 : 1);
        }
    }

    void addPrice(QList<Attributes>& thePrices, const QString& theTypes, const QString& theLevels,
                  const QString& theQuantities, const QString& theAmounts)
    {
        Attributes price;
        myDice.draw(price, "type", theTypes);
        myDice.draw(price, "level", theLevels);
        myDice.draw(price, "quantity", theQuantities);
        myDice.draw(price, "price", theAmounts);
        if (!myDice.oneIn(2)) {
            myDice.draw(price, "input_source", "_|_|_|_|_|_|_|0|1|4|0,1|9");
            myDice.draw(price, "delivery_type", "_|_|_|_|_|_|_|0|1|2|x,1|x");
            myDice.draw(price, "transfer_base_price", "_|_|_|0|300|500|-5|2147483647");
            myDice.draw(price, "transfer_unit_price", "_|_|_|50|70|-1|2147483647");
            myDice.draw(price, "non_offer_price", "_|77|0|-1");
            myDice.draw(price, "end_offer_date", "_|2999-12-31T23:59:59|2999-12-31|2001-01-01|31.12.2999");
        }
        thePrices += price;
    }

    Dice myDice;
};

#endif
