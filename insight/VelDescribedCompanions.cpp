#include "insight/VelDescribedDocuments.h"
#include "insight/VelDescriptionBuilder.h"
#include "insight/VelVocabularies.h"

namespace {

using Builder = VelDescriptionBuilder;
using Value = VelValueDescription;
using namespace VelVocabularies;

VelElementDescription field(const char* theTag, const Value& theValue, const char* theDefault, const char* theMeaning)
{
    return Builder::once(theTag, theMeaning).needed(NEED_SHOULD).withText(theValue, theDefault);
}

Value numberOf(const VelVocabulary& theWords)
{
    return Builder::word(theWords, Builder::of(Value::TYPE_NUMBER));
}

} // namespace

VelElementDescription VelDescribedDocuments::currencies()
{
    return Builder::once("currencies",
                         "All currencies that a shop may name; a field that is left out takes the euro's value.")
        .ofAnyTag()
        .child(Builder::many("currency", "One currency; of two with one code the later counts.")
                   .ofAnyTag()
                   .needed(NEED_MUST)
                   .must("isocode", Builder::code("currency"), nullptr, "The code that ordering details name.")
                   .child(field("name", Builder::text(), "Euro", "Its name."))
                   .child(field("symbol", Builder::text(), "€", "The symbol in plain text."))
                   .child(field("symbolHTML", Builder::text(), "&euro;",
                                "The symbol on a page; in the file its ampersand is written as &amp;."))
                   .child(field("decimalsep", Builder::text(), ",", "The decimal separator, any text."))
                   .child(field("symbolinfront", Builder::of(Value::TYPE_BOOL), "false",
                                "Whether the symbol stands before the amount."))
                   .child(field("decimalplaces", Builder::count(), "2",
                                "The digits behind the separator; 0 prints no separator.")));
}

VelElementDescription VelDescribedDocuments::appearance()
{
    return Builder::once("appearance",
                         "Settings of the application, of which the library reads the order way to start with.")
        .ofAnyTag()
        .open()
        .child(Builder::once("defaultOrderSource", "The order way to start with, as numbers.")
                   .must("inputSource", numberOf(inputSources()), "-1", "How the order comes in.")
                   .must("deliveryType", numberOf(deliveryTypes()), "-1", "How the goods go out."));
}

VelElementDescription VelDescribedDocuments::coupon()
{
    return Builder::once("coupon_terms", "The terms of a coupon.")
        .ofAnyTag()
        .child(
            Builder::once("coupons", "Holds one coupon.")
                .needed(NEED_MUST)
                .child(
                    Builder::once("coupon", "What the coupon takes off; only the first one counts.")
                        .needed(NEED_MUST)
                        .must("type", Builder::word(couponTypes()), nullptr,
                              "One word; without a known one the coupon isn't valid.")
                        .may("price", Builder::centsOff(), "0",
                             "With value cents, with percent the percentage; what takes something off is negative.")
                        .onlyWith("type", {"VALUE", "PERCENT"})
                        .may("minimum_price", Builder::cents(), "0", "Cents that the coupon's articles must come to.")
                        .onlyWith("type", {"VALUE", "PERCENT"})
                        .may("free_quantity", Builder::count(), "0",
                             "Pieces given free, each worth the lowest unit price among the coupon's articles.")
                        .onlyWith("type", {"QUANTITY"})
                        .may("minimum_quantity", Builder::count(), "0", "Pieces of the coupon's articles to be bought.")
                        .onlyWith("type", {"QUANTITY"})
                        .must("campaign_no", Builder::text(), nullptr,
                              "The campaign; without the attribute the coupon isn't valid, an empty one is enough.")
                        .may("shareable", Builder::of(Value::TYPE_BOOL), "false", "Told to the application.")
                        .child(
                            Builder::many(
                                "condition",
                                "One article on which the coupon counts; without any it counts on all and on shipping.")
                                .must("art_id", Builder::idOf("article"), "0",
                                      "The number of an article, an add-on, a transfer or the payment fee."))));
}

VelElementDescription VelDescribedDocuments::paymentIcons()
{
    return Builder::once("payment", "The icons of payments.")
        .ofAnyTag()
        .child(Builder::many("method", "The icon of one payment; of two with one name the later counts.")
                   .must("name", Builder::codeOf("payment name"), nullptr,
                         "The name of a payment in orderingdetails.xml, letter by letter.")
                   .must("icon", Builder::text(), nullptr, "The file of the icon."));
}
