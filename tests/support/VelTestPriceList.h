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

/// Lets the registry load a price list, written as one line for each entry: tag and attributes | prices as in priced()
/// | attributes of each price | order-text head and line | linked articles | express types by mail order. Cells at the
/// end may be left out.
inline void loadPriceList(const TestAccount& theAccount, const char* theLines)
{
    QMap<QString, QString> sections;
    for (const QString& line : QString::fromUtf8(theLines).trimmed().split('\n')) {
        const auto cell = [&](int theIndex) { return line.section('|', theIndex, theIndex).trimmed(); };
        const QString tag = cell(0).section(' ', 0, 0);
        QString children = QString("<order_txt_lines head='%1'><l>%2</l></order_txt_lines><linked_articles>")
                               .arg(cell(3).section(' ', 0, 0), cell(3).section(' ', 1));
        for (const QString& id : cell(4).split(' ', Qt::SkipEmptyParts))
            children += "<linked_article id='" + id + "'/>";
        children += "</linked_articles><shipping_times>";
        for (const QString& type : cell(5).split(' ', Qt::SkipEmptyParts))
            children += "<shipping_time days='3' delivery_type='1' express='" + type + "'/>";
        QString entry;
        QTextStream stream(&entry);
        priced(cell(1), tag, cell(2)).save(stream, -1);
        sections[tag] += entry.replace(0, tag.size() + 2, "<" + cell(0) + ">" + children + "</shipping_times>");
    }
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
    for (const QString& entry : theCart.split(' ', Qt::SkipEmptyParts))
        cart.add(product(entry.section('x', 0, 0).toInt()), entry.section('x', 1).toInt());
    VelTarmStatus status;
    status.setPayment(thePayment);
    return VelTarmBill(theGroup, cart, theExpressType, status);
}

#endif
