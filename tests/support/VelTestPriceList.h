#ifndef VELTESTPRICELIST_H
#define VELTESTPRICELIST_H

#include "bill/VelTarmBill.h"
#include "bill/VelTarmBillPosition.h"
#include "product/VelProductAbstract.h"
#include "product/VelProductRegistry.h"
#include "support/VelTestAccount.h"
#include "support/VelTestPrices.h"

inline VelProductAbstract* product(int theArticleID)
{
    return VelProductRegistry::instance()->productWithArticleID(theArticleID);
}

inline QString joined(const QList<int>& theNumbers)
{
    QStringList texts;
    for (const int number : theNumbers)
        texts.append(QString::number(number));
    return texts.join(' ');
}

/// The articles of a bill's positions.
inline QString articlesOf(const VelTarmBillPositionList& thePositions)
{
    QList<int> ids;
    for (const VelTarmBillPositionAbstract* position : thePositions)
        ids.append(position->product()->articleID());
    return joined(ids);
}

/// The element of one line of a price list, of which loadPriceList() tells.
inline QString priceListEntry(const QString& theLine)
{
    QMap<QString, QString> parts{{"prices", ""}, {"with", ""}, {"text", ""}, {"links", ""}, {"express", ""}};
    const QStringList cells = trimmedParts(theLine, '|');
    for (const QString& cell : cells.mid(1)) {
        require(parts.contains(cell.section(' ', 0, 0)), cell);
        parts[cell.section(' ', 0, 0)] = cell.section(' ', 1);
    }
    QString children = QString("<order_txt_lines head='%1'><l>%2</l></order_txt_lines><linked_articles>")
                           .arg(parts["text"].section(' ', 0, 0), parts["text"].section(' ', 1));
    for (const QString& id : parts["links"].split(' ', Qt::SkipEmptyParts))
        children += "<linked_article id='" + id + "'/>";
    children += "</linked_articles><shipping_times>";
    for (const QString& type : parts["express"].split(' ', Qt::SkipEmptyParts))
        children += "<shipping_time days='3' delivery_type='1' express='" + type + "'/>";
    QString entry;
    QTextStream stream(&entry);
    const QString tag = cells.first().section(' ', 0, 0);
    priced(parts["prices"], tag, parts["with"]).save(stream, -1);
    return entry.replace(0, tag.size() + 2, "<" + cells.first() + ">" + children + "</shipping_times>");
}

/// Lets the registry load a price list, written as one line for each entry: tag and attributes, and further cells that
/// begin with their names, as in "article id='1' | prices 0=100 | text [BOOK] TYPE=ALB8". There are prices as in
/// priced(), with attributes for each of them, the head and a line of the order text, links to articles, and the
/// express types of the shipping by mail order.
inline void loadPriceList(const TestAccount& theAccount, const QString& theLines)
{
    QMap<QString, QString> sections;
    for (const QString& line : trimmedParts(theLines.trimmed(), '\n'))
        if (!line.isEmpty())
            sections[line.section(' ', 0, 0)] += priceListEntry(line);
    QString document;
    for (auto section = sections.cbegin(); section != sections.cend(); ++section)
        document += QString("<%1s>%2</%1s>").arg(section.key(), section.value());
    VelKeyAccount::instance()->setPricelistXMLFileInfo(
        theAccount.write("pricelist.xml", ("<p>" + document + "</p>").toUtf8()));
    VelProductRegistry::instance()->loadAllProducts();
}

/// The bill of a cart that is written as article x count, as in "1x3 11x1".
inline VelTarmBill bill(int theGroup, const QString& theCart,
                        VelExpressTypeEnum theExpressType = ExpressableType_UNKNOWN,
                        VelPaymentType thePayment = PAYMENT_TYPE_3)
{
    VelOrderStatistic cart;
    for (const QString& entry : theCart.split(' ', Qt::SkipEmptyParts)) {
        VelProductAbstract* article = product(wholeNumber(entry.section('x', 0, 0)));
        require(article, entry);
        cart.add(article, wholeNumber(entry.section('x', 1)));
    }
    VelTarmStatus status;
    status.setPayment(thePayment);
    return VelTarmBill(theGroup, cart, theExpressType, status);
}

#endif
