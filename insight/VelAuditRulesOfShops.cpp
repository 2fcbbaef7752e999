#include "insight/VelAuditRules.h"

namespace {

QVector<VelAuditRule> rulesOfPrices()
{
    return {
        // ---- what is missing
        {"no-price", SEVERITY_ERROR, "An article, add-on or fee has no price at all.",
         "<article id=\"101\"><base_prices/></article>", "Write a price entry; 0 is a price, too."},
        {"no-plain-price", SEVERITY_ERROR,
         "Level 0 is missing where no package carries it, so small quantities have no price.",
         "<price level=\"1\" quantity=\"50\" price=\"10\"/>", "Write an entry without level in base_prices."},
        {"least-quantity", SEVERITY_NOTE, "Packages begin above one piece, and fewer can't be ordered.",
         "<price type=\"P\" level=\"1\" quantity=\"10\" price=\"450\"/>",
         "Write a plain price, or let the first package begin with 1."},
        {"level-skipped", SEVERITY_ERROR,
         "A level is missing between two others; a package in front of the gap has -1 pieces.",
         "<price type=\"P\" level=\"1\"/> <price type=\"p\" level=\"3\"/>", "Number the levels without gaps."},
        {"level-without-quantity", SEVERITY_WARNING,
         "A level above 0 doesn't say from which quantity on it holds; it holds from the first piece.",
         "<price level=\"1\" price=\"10\"/>", "Write the quantity, also a 1."},
        // ---- what contradicts itself
        {"level-never-asked", SEVERITY_WARNING,
         "Packages and shipping by bill sum have no level 0; an entry there never holds.",
         "<price type=\"P\" price=\"450\"/>", "Write level=\"1\" and the quantity from which it holds."},
        {"levels-not-rising", SEVERITY_WARNING,
         "A level begins no later than the one below it, which therefore never holds.",
         "<price level=\"1\" quantity=\"50\"/> <price level=\"2\" quantity=\"10\"/>",
         "Let the quantities rise with the levels."},
        {"package-without-end", SEVERITY_WARNING, "No level follows a package, so any number of pieces costs its sum.",
         "<price type=\"P\" level=\"1\" quantity=\"1\" price=\"590\"/>",
         "Write a further level with a lower-case letter for the pieces beyond."},
        {"overridden-price", SEVERITY_WARNING,
         "A later entry of the same model, level and order ways leaves nothing of a price.",
         "<price price=\"12\"/> <price price=\"14\"/>", "Take one of the two out, or name the order ways of each."},
        {"price-not-on-offer", SEVERITY_WARNING,
         "A price stands under order ways that the ordering details don't offer.",
         "<price price=\"12\" input_source=\"4\"/>",
         "Offer the order way or take the price out; the kiosk needs input_source=\"4\" and delivery_type=\"2\"."},
        {"offer-over", SEVERITY_WARNING, "The end of an offer is past, so its old price is no longer shown.",
         "<price price=\"39\" non_offer_price=\"49\" end_offer_date=\"2012-12-31T23:59:59\"/>",
         "Write the price that holds now, and take the old one and the date out."},
        {"offer-not-cheaper", SEVERITY_WARNING, "An offer isn't cheaper than the old price beside it.",
         "<price price=\"59\" non_offer_price=\"49\" end_offer_date=\"2099-12-31T23:59:59\"/>",
         "Exchange the two, or mend the one that is wrong."},
        {"offer-without-old-price", SEVERITY_WARNING, "An offer has an end, and no old price that could be shown.",
         "<price price=\"39\" end_offer_date=\"2099-12-31T23:59:59\"/>",
         "Write non_offer_price, or take the date out."},
        {"offer-without-end", SEVERITY_WARNING, "An old price has no end of the offer, so it is never shown.",
         "<price price=\"39\" non_offer_price=\"49\"/>", "Write end_offer_date, or take the old price out."},
        // ---- what a customer will notice
        {"unit-price-rises", SEVERITY_NOTE, "A piece is dearer at a level than at the one below it.",
         "<price level=\"1\" price=\"10\"/> <price level=\"2\" price=\"12\"/>",
         "Look whether the prices are exchanged."},
        {"total-falls", SEVERITY_NOTE, "A larger quantity costs less in all than a smaller one.",
         "<price price=\"12\"/> <price level=\"1\" quantity=\"50\" price=\"10\"/>",
         "Nothing has to be mended; smaller steps between the levels make it less."},
        {"dearer-model-wins", SEVERITY_NOTE,
         "A package or inherited price is taken though the plain price would be cheaper.",
         "<price price=\"12\"/> <price type=\"P\" level=\"1\" quantity=\"5\" price=\"590\"/>",
         "Let the package begin where it is cheaper, or lower its sum."},
        {"amount-too-large", SEVERITY_NOTE, "From a quantity below 100,000 on an amount no longer fits into 32 bits.",
         "<price price=\"250000\"/>", "Limit the pieces of an order by max_order_items of the group."},
    };
}

QVector<VelAuditRule> rulesOfEntries()
{
    return {
        {"unknown-book", SEVERITY_ERROR, "The application doesn't know the number of a book or calendar.",
         "<article id=\"4711\" arrangement=\"photobook\"/>", "Use one of the numbers that the application knows."},
        {"unknown-product-type", SEVERITY_ERROR,
         "A book, calendar, card or gift has no known product type, so it is dropped.", "<line>TYPE=ALB99</line>",
         "Write a line TYPE= with a code that the application knows."},
        {"pages-without-end", SEVERITY_WARNING, "min_pages stands without max_pages, which then is 0.",
         "<article min_pages=\"24\"/>", "Write max_pages."},
        {"pages-without-step", SEVERITY_NOTE, "The numbers of pages differ, and there is no step to go by.",
         "<article min_pages=\"24\" max_pages=\"96\"/>", "Write page_step, or the same number twice."},
        {"limits-crossed", SEVERITY_WARNING, "An upper limit lies below the lower one.",
         "<article min_pages=\"96\" max_pages=\"24\"/>", "Exchange the two."},
        {"duplicate-id", SEVERITY_ERROR, "A number stands twice; of two articles the later overwrites the first.",
         "<article id=\"101\"/> <article id=\"101\"/>", "Give each entry a number of its own."},
        {"duplicate-fee", SEVERITY_ERROR, "Two fees are for the same, and only the later one counts.",
         "<transfer group=\"1\"/> <transfer group=\"1\"/>", "Take one of the two out, or mend what it is for."},
        {"duplicate-key", SEVERITY_WARNING, "What others are found by stands twice, so one of the two is never found.",
         "<group id=\"1\"/> <group id=\"1\"/>", "Take one of the two out, or give it a key of its own."},
        {"broken-link", SEVERITY_WARNING, "An add-on is linked to what is no article that can be ordered.",
         "<linked_article id=\"999\"/>", "Write the number of an article."},
        {"unknown-group", SEVERITY_ERROR, "A shipping group isn't listed, so its articles can't be ordered.",
         "<article group=\"99\"/>", "List the group in orderingdetails.xml, or mend the number."},
    };
}

QVector<VelAuditRule> rulesOfOrders()
{
    return {
        {"group-without-transfer", SEVERITY_WARNING, "Articles of a shipping group are sent free of charge.",
         "<group id=\"1\"/>", "Write a transfer for the group, with the price 0 where that is meant."},
        {"shipping-without-price", SEVERITY_ERROR,
         "Articles are sold by an order way for which their transfer has no price.",
         "<transfer><base_prices><price price=\"295\" delivery_type=\"1\"/></base_prices></transfer>",
         "Write an entry for each order way, with the price 0 where shipping is free."},
        {"fee-without-articles", SEVERITY_WARNING, "A transfer or express fee is for a group that has no article.",
         "<transfer group=\"9\"/>", "Mend the group, or take the fee out."},
        {"express-without-time", SEVERITY_WARNING,
         "No article of the group has a shipping time of the fee's express class.",
         "<express_fee group=\"1\" express=\"2\"/>", "Write shipping times of the class, or take the fee out."},
        {"express-not-offered", SEVERITY_WARNING, "An express class of the fee 0 is never offered.",
         "<express_fee express=\"1\"><base_prices><price price=\"0\"/></base_prices></express_fee>",
         "Write a fee above 0."},
        {"payment-without-fee", SEVERITY_NOTE, "No fee names a payment that is offered: it costs nothing.",
         "<permitted_pay_method id=\"10\"/>", "Write a paymethod_fee with the price 0 to say that it is meant."},
        {"unknown-payment", SEVERITY_WARNING, "A number names no payment of pay_methods.",
         "<paymethod_fee pay_method_id=\"7\"/>", "List the payment in pay_methods, or mend the number."},
        {"order-way-without-prices", SEVERITY_ERROR, "An order way is offered that no article is priced for.",
         "<order_source input_source=\"4\" delivery_type=\"2\"/>",
         "Write prices for it, or take it out; the kiosk's prices name both halves."},
        {"default-order-way-not-offered", SEVERITY_WARNING,
         "The application starts with an order way that isn't offered.",
         "<defaultOrderSource inputSource=\"4\" deliveryType=\"2\"/>", "Write one of the order ways on offer."},
        {"unknown-currency", SEVERITY_ERROR, "A currency isn't one of currencies.xml.", "<currency id=\"EURO\"/>",
         "Write its code as currencies.xml has it, or add it there."},
        {"impossible-factor", SEVERITY_ERROR, "The factor of a currency is 0 or below.",
         "<currency id=\"CHF\" factor=\"0\"/>", "Write how much of the primary currency one unit costs."},
        {"currency-without-effect", SEVERITY_WARNING,
         "A later currency takes the place of one: the primary one stands first, and there is one of each kind.",
         "<currency id=\"CHF\" factor=\"0.8\"/> <currency id=\"EUR\"/>", "Write the primary currency first."},
        {"coupon-adds", SEVERITY_ERROR, "A coupon makes bills dearer.", "<coupon type=\"value\" price=\"500\"/>",
         "Write what takes something off as a negative price, and free pieces as a positive number."},
        {"coupon-without-effect", SEVERITY_WARNING, "A coupon takes nothing off.",
         "<coupon type=\"quantity\" campaign_no=\"1\"/>",
         "Write a price or free_quantity, or name a transfer whose shipping is free."},
        {"unknown-coupon-article", SEVERITY_WARNING, "A coupon names what no price entry stands for.",
         "<condition art_id=\"999\"/>", "Write the number of an article, add-on, transfer or payment fee."},
    };
}

} // namespace

QVector<VelAuditRule> VelAuditRules::ofShops()
{
    return rulesOfPrices() + rulesOfEntries() + rulesOfOrders();
}
