#include "insight/VelDescribedDocuments.h"
#include "insight/VelDescriptionBuilder.h"
#include "insight/VelVocabularies.h"
#include "product/VelProductAbstract.h"

namespace {

using Builder = VelDescriptionBuilder;
using Value = VelValueDescription;
using namespace VelVocabularies;

// ---- price entries

/// The attributes of a price entry but the two of shipping by products.
Builder price(const VelVocabulary& theLetters, const char* theDefaultLetter)
{
    return Builder::many("price",
                         "One price: what a piece, a package or a fee costs from a quantity on, by some order ways.")
        .ofAnyTag()
        .may("type", Builder::word(theLetters), theDefaultLetter, "The discount model, a letter.")
        .may("level", Builder::count(), "0", "The discount level; 0 is the plain price.")
        .may("quantity", Builder::count(), "0",
             "From how many pieces on the level holds; with Z from which bill sum on, in cents.")
        .must("price", Builder::cents(-1), "-1",
              "Cents for each piece, or for the whole package or fee; -1 is no price.")
        .may("input_source", Builder::word(inputSources()), nullptr,
             "How the order comes in; without it the price holds for net and CD.")
        .may("delivery_type", Builder::word(deliveryTypes()), nullptr,
             "How the goods go out; without it the price holds for point of sale and mail order.")
        .may("non_offer_price", Builder::cents(-1), "-1", "The old price in cents that is shown beside an offer.")
        .may("end_offer_date", Builder::of(Value::TYPE_DATE_TIME), nullptr,
             "When the old price is no longer shown; without it, it is never shown.");
}

/// What is sold: it may carry what it costs to ship it.
VelElementDescription soldPrice(const VelVocabulary& theLetters)
{
    return price(theLetters, "B")
        .may("transfer_base_price", Builder::cents(), "0",
             "Cents of shipping under transfer model 2; the bill pays the highest of its articles once.")
        .onlyWith("type", {"B"})
        .onlyWith("level", {"0"})
        .may("transfer_unit_price", Builder::cents(), "0",
             "Cents of shipping under transfer model 2 for each further piece.")
        .onlyWith("type", {"B"})
        .onlyWith("level", {"0"});
}

/// A fee isn't shipped itself.
VelElementDescription feePrice(const VelVocabulary& theLetters, const char* theDefaultLetter)
{
    return price(theLetters, theDefaultLetter)
        .idle("transfer_base_price", Builder::cents(), "Shipping prices are read in articles and add-ons.")
        .idle("transfer_unit_price", Builder::cents(), "Shipping prices are read in articles and add-ons.");
}

void addPrices(Builder& theEntry, const VelElementDescription& thePrice)
{
    theEntry.child(Builder::once("base_prices", "The plain prices.").needed(NEED_SHOULD).child(thePrice))
        .child(Builder::once("discount_prices",
                             "The prices from larger quantities on; both groups are read alike, this one later.")
                   .child(thePrice));
}

// ---- what every entry may hold

VelElementDescription size(VelNeed theNeed)
{
    return Builder::once("size", "The size of a print and the resolutions that it takes.")
        .needed(theNeed)
        .should("width", Builder::count(1), "0", "Width in whole millimetres.")
        .should("height", Builder::count(1), "0", "Height in whole millimetres.")
        .may("dpi", Builder::count(1), "300", "The print resolution, for the size in pixels.")
        .may("dpi_green", Builder::count(1), "150", "From this resolution on a picture is rated green.")
        .may("dpi_yellow", Builder::count(1), "90", "From this resolution on a picture is rated yellow, below it red.");
}

VelElementDescription orderText(VelNeed theNeed)
{
    const QStringList heads{VelProductAbstract::STR_DESIGN, VelProductAbstract::STR_FRAME,
                            VelProductAbstract::STR_WALL_HOLDER, VelProductAbstract::STR_PAGE_PACKAGE};
    const QStringList keys{VelProductAbstract::STR_TYPE, VelProductAbstract::STR_SCALE,
                           VelProductAbstract::STR_SALESLINE, QStringLiteral("BORDER=")};
    return Builder::once("order_txt_lines", "The lines that go into the order for this product.")
        .needed(theNeed)
        .may("head", Builder::knownText(Value::TYPE_TEXT, heads), "",
             "The first line; [DESIGN], [FRAME], [WALL_HOLDER] and [PAGES] mark the kinds of add-ons, exactly so.")
        .child(Builder::many("line", "One line of the order text, a key, an equals sign and a value, blanks included.")
                   .ofAnyTag()
                   .withText(Builder::knownText(Value::TYPE_LINE, keys), ""));
}

VelElementDescription shippingTimes(VelNeed theNeed)
{
    return Builder::once("shipping_times", "How many days production and shipping take.")
        .needed(theNeed)
        .child(Builder::many("shipping_time", "The days of one way to the customer in one express class.")
                   .should("days", Builder::of(Value::TYPE_DAYS), nullptr,
                           "One number of days, or two with a hyphen between.")
                   .must("delivery_type", Builder::word(deliveryTypes()), nullptr, "The way to the customer.")
                   .must("express", Builder::word(expressTypes()), nullptr,
                         "The express class; an article without an entry for a class can't go by it."));
}

Builder& withParts(Builder& theEntry, VelNeed theNeed)
{
    return theEntry.child(size(theNeed)).child(orderText(theNeed)).child(shippingTimes(theNeed));
}

Builder entry(const char* theTag, const char* theMeaning)
{
    return Builder::many(theTag, theMeaning)
        .must("id", Builder::id("article"), "0",
              "The article number; of two articles or add-ons with one number the later overwrites the data of the "
              "first.")
        .should("name", Builder::text(), nullptr, "The shop's own name, in lists and in the order text.")
        .should("editor_name", Builder::text(), "", "What the customer reads; the name does not stand in for it.");
}

// ---- the entries

VelElementDescription article()
{
    Builder article = entry("article", "One product that is sold by itself.");
    article
        .must("group", Builder::idOf("group", 0), "-1",
              "The shipping group; one that orderingdetails.xml doesn't list makes the article impossible to order.")
        .must("arrangement", Builder::word(arrangements()), nullptr,
              "What kind of product it is, one word; without a known one the article is refused.")
        .may("min_pages", Builder::count(), "0", "The smallest number of pages.")
        .notWith("arrangement", {"trivial"})
        .may("max_pages", Builder::count(), "0", "The largest number of pages.")
        .notWith("arrangement", {"trivial"})
        .may("page_step", Builder::count(), "0", "The pages of one page package; 0 where the number of pages is fixed.")
        .notWith("arrangement", {"trivial"});
    addPrices(withParts(article, NEED_MAY), soldPrice(lettersOfArticles()));
    return article;
}

VelElementDescription addOn()
{
    Builder addOn = entry("add_on", "One product that is sold together with an article only.");
    addOn.must("group", Builder::idOf("group", 0), "-1", "The shipping group.")
        .must("product_class", Builder::text(), nullptr,
              "The kind of add-on, an exact word such as GPT1, WH2, MAP1 or VDO1; without one, and with 11 or 21, it "
              "is dropped.")
        .idle("arrangement", Builder::word(arrangements()), "An arrangement has no effect on an add-on.");
    addPrices(withParts(addOn, NEED_MAY), soldPrice(lettersOfAddOns()));
    return addOn.child(Builder::once("linked_articles", "The articles that the add-on fits; without any it fits none.")
                           .needed(NEED_MUST)
                           .child(Builder::many("linked_article", "One article that the add-on fits.")
                                      .must("id", Builder::idOf("main article"), "-1", "The number of the article.")));
}

/// A fee is read as an article is, but most of that has no effect.
Builder fee(const char* theTag, const char* theMeaning, const VelElementDescription& thePrice)
{
    Builder fee = entry(theTag, theMeaning);
    fee.idle("arrangement", Builder::word(arrangements()), "An arrangement has no effect on a fee.");
    addPrices(withParts(fee, NEED_IDLE), thePrice);
    return fee;
}

VelElementDescription paymentFee()
{
    return fee("paymethod_fee", "What a payment costs, once on each bill that comes to more than 0.",
               feePrice(lettersOfPaymentFees(), "B"))
        .must("pay_method_id", Builder::idOf("payment", 0), "0",
              "The number of the payment in orderingdetails.xml; 0 is a payment, too.")
        .idle("group", Builder::idOf("group", 0), "A payment fee holds for all shipping groups.");
}

VelElementDescription transfer()
{
    return fee("transfer", "What shipping costs in one shipping group.", feePrice(lettersOfTransfers(), "F"))
        .must("group", Builder::idOf("group", 0), "-1", "The shipping group whose articles it ships.")
        .may("model", Builder::word(transferModels()), "1",
             "1: shipping by the prices of this entry; 2: by the transfer prices of the articles, and this entry has "
             "one price that plays no part.");
}

VelElementDescription expressFee()
{
    return fee("express_fee", "What one express class costs in one shipping group.",
               feePrice(lettersOfExpressFees(), "X"))
        .must("group", Builder::idOf("group", 0), "-1", "The shipping group that it serves.")
        .must("express", Builder::word(expressTypes()), nullptr, "The express class.");
}

} // namespace

VelElementDescription VelDescribedDocuments::priceList()
{
    return Builder::once("pricelist",
                         "The price list of a shop: articles, add-ons and fees with all their prices, in cents.")
        .ofAnyTag()
        .child(Builder::once("articles", "What is sold by itself.").needed(NEED_SHOULD).child(article()))
        .child(Builder::once("add_ons", "What is sold together with articles.").child(addOn()))
        .child(
            Builder::once("paymethod_fees", "What payments cost; one without a fee costs nothing.").child(paymentFee()))
        .child(
            Builder::once("transfers", "What shipping costs; a group without a transfer pays none.").child(transfer()))
        .child(Builder::once("express_fees", "What express classes cost; one without a fee above 0 isn't offered.")
                   .child(expressFee()));
}
