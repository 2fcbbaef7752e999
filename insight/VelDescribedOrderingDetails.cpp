#include "insight/VelDescribedDocuments.h"
#include "insight/VelDescriptionBuilder.h"
#include "insight/VelVocabularies.h"

namespace {

using Builder = VelDescriptionBuilder;
using Value = VelValueDescription;
using namespace VelVocabularies;

VelElementDescription flag(const char* theTag, const char* theMeaning)
{
    return Builder::once(theTag, theMeaning).withText(Builder::of(Value::TYPE_BOOL), "false");
}

/// What all three kinds of payments have.
Builder payment(const char* theTag, const char* theMeaning, const Value& theId, const char* theMeaningOfId)
{
    return Builder::many(theTag, theMeaning)
        .ofAnyTag()
        .must("id", theId, "0", theMeaningOfId)
        .should("name", Builder::text(), nullptr, "Shown to the customer, and finds the icon, letter by letter.")
        .may("brand", Builder::text(), nullptr, "Tells the cards or transfer methods apart, letter by letter.")
        .may("blockable", Builder::of(Value::TYPE_BOOL), "false", "Whether a defaulting customer may lose it.");
}

VelElementDescription payMethods()
{
    const Value id = Builder::word(payments(), Builder::id("payment", 0));
    return Builder::once("pay_methods", "The payments; without them no payment can be named.")
        .needed(NEED_SHOULD)
        .child(payment("pay_method", "One payment.", id,
                       "The number of the payment everywhere; one with another number is dropped."));
}

VelElementDescription creditCards()
{
    return Builder::once("credit_cards", "The cards behind the payment 1.")
        .child(payment("credit_card", "One card.", Builder::id("card", 0), "A number of the shop's own."));
}

VelElementDescription onlineTransferMethods()
{
    return Builder::once("online_transfer_methods", "The transfer methods behind the payment 9.")
        .child(payment("online_transfer_method", "One transfer method.", Builder::id("transfer method", 0),
                       "A number of the shop's own."));
}

VelElementDescription orderSources()
{
    return Builder::once("order_sources", "The order ways; without any the shop takes no orders.")
        .needed(NEED_MUST)
        .child(
            Builder::many("order_source", "One order way; without any child it takes default payments.")
                .ofAnyTag()
                .must("input_source", Builder::word(inputSources()), nullptr,
                      "How the order comes in; the kiosk goes with delivery on site and with nothing else.")
                .must("delivery_type", Builder::word(deliveryTypes()), nullptr, "How the goods go out.")
                .child(Builder::many("permitted_pay_method", "One payment of this order way, in the order of showing.")
                           .must("id", Builder::idOf("payment", 0), "0", "The number of the payment.")));
}

VelElementDescription discountTypes()
{
    return Builder::once("discount_types", "The wordings of bill positions.")
        .child(
            Builder::many("discount_type", "The wordings of one discount model.")
                .ofAnyTag()
                .must("id", Builder::word(allLetters()), nullptr, "The letter of the discount model in the price list.")
                .may("single_description", Builder::text(), "%1 Stück", "For single pieces: %1 is their number.")
                .may("group_description", Builder::text(), "%1-Stück-Paket %2",
                     "For packages: %1 is the number of pieces, %2 the price."));
}

VelElementDescription currencies()
{
    return Builder::once("currencies", "The primary and the secondary currency; without any it is EUR.")
        .child(Builder::many("currency", "One currency; the primary one stands first.")
                   .ofAnyTag()
                   .must("id", Builder::codeOf("currency"), nullptr,
                         "An ISO code that currencies.xml has, letter by letter.")
                   .may("factor", Builder::of(Value::TYPE_FACTOR), nullptr,
                        "Makes it the secondary currency: its amounts are those of the primary one divided by this."));
}

VelElementDescription groups()
{
    return Builder::once("groups",
                         "The shipping groups, in the order of showing; without any no article can be ordered.")
        .needed(NEED_MUST)
        .child(Builder::many("group", "One shipping group.")
                   .must("id", Builder::id("group", 0), "-1",
                         "The number that articles and fees name; of two groups the later counts.")
                   .should("name", Builder::text(), nullptr, "Shown to the customer.")
                   .may("transfer_model", Builder::word(transferModels()), "-1",
                        "Told to the application; keep it the same as the model of the price list's transfer.")
                   .may("last_change", Builder::of(Value::TYPE_DATE_TIME), "1970-05-26T09:30:00",
                        "The newest change of the group's prices; an older price list is told to be out of date.")
                   .may("max_order_items", Builder::count(-1), "-1", "The most pieces of an order; -1 is no limit."));
}

VelElementDescription clientStrategyExceptions()
{
    return Builder::once("client_strategy_exceptions", "Departures from the usual handling of logins.")
        .child(Builder::once("client_strategy_exception", "The departures; only the first one counts.")
                   .may("userinsert_strategy", Builder::word(strategies()), "default",
                        "What happens when a user is to be inserted.")
                   .may("userinsert_target", Builder::text(), nullptr, "The text that goes with it.")
                   .may("password_strategy", Builder::word(strategies()), "default",
                        "What happens for a forgotten password.")
                   .may("password_target", Builder::text(), nullptr, "The text that goes with it, such as an address.")
                   .may("connect_strategy", Builder::word(connectStrategies()), "default", "How the client connects.")
                   .may("logindata_editing", Builder::of(Value::TYPE_BOOL), "true", "Whether login data may be edited.")
                   .may("dns_mail_suffix", Builder::text(), nullptr, "The mail suffix.")
                   .may("show_agb_checkbox", Builder::of(Value::TYPE_BOOL), "true",
                        "Whether the checkbox for the terms is shown."));
}

VelElementDescription imageExportTargets()
{
    return Builder::once("image_exports", "Where images can be exported to.")
        .child(Builder::many("image_export", "One target.")
                   .must("type", Builder::word(imageExports()), nullptr, "One word; an unknown one adds nothing."));
}

} // namespace

VelElementDescription VelDescribedDocuments::orderingDetails()
{
    return Builder::once("orderingdetails",
                         "By which ways a shop sells, how it is paid, and which shipping groups it has.")
        .ofAnyTag()
        .child(payMethods())
        .child(creditCards())
        .child(onlineTransferMethods())
        .child(flag("doi", "Whether orders are confirmed by mail."))
        .child(flag("address_check", "Whether addresses are checked."))
        .child(flag("sales_tax", "Whether the sales tax is checked."))
        .child(orderSources())
        .child(discountTypes())
        .child(::currencies())
        .child(groups())
        .child(clientStrategyExceptions())
        .child(imageExportTargets());
}
