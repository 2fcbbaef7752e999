#include "benchmarks/PriceRows.h"

#include <QDateTime>
#include <QXmlStreamReader>

#include <algorithm>
#include <iterator>
#include <tuple>

namespace {

const struct
{
    const char* myName;
    Section mySection;
} SECTIONS[] = {{"article", Section::ARTICLES},
                {"add_on", Section::ADD_ONS},
                {"transfer", Section::TRANSFERS},
                {"paymethod_fee", Section::PAYMENT_FEES},
                {"express_fee", Section::EXPRESS_FEES}};

const struct
{
    char myLetter;
    VelDiscountModel myModel;
} MODELS[] = {{'B', DISCOUNT_MODEL_BULK},
              {'L', DISCOUNT_MODEL_LEVEL_PACKAGE},
              {'P', DISCOUNT_MODEL_PACKAGE},
              {'F', DISCOUNT_MODEL_BULK_TRANSFER},
              {'Z', DISCOUNT_MODEL_BILLING_SUM_TRANSFER},
              {'X', DISCOUNT_MODEL_EXPRESS_FEE},
              {'I', DISCOUNT_MODEL_INHERITED_DISCOUNT}};

const char DELIVERY_NUMBERS[] = "012"; // each digit stands at its number
const char INPUT_NUMBERS[] = "014";

int number(const QXmlStreamAttributes& theAttributes, const char* theName, int theDefault)
{
    bool isNumber = false;
    const int value = theAttributes.value(QLatin1String(theName)).toInt(&isNumber);
    return isNumber ? value : theDefault;
}

/// The numbers that an order way's half stands for; the first two when it is missing.
std::vector<int> spread(QStringView theText, const char* theNumbers)
{
    if (theText.isEmpty())
        return {0, 1};
    std::vector<int> numbers;
    for (int index = 0; theNumbers[index] != 0; ++index)
        if (theText == QLatin1Char(theNumbers[index]))
            numbers.push_back(index);
    return numbers;
}

/// The letter of an entry, a missing one by the section: fees have their own.
char letterOf(const QXmlStreamAttributes& theAttributes, Section theSection)
{
    const QStringView type = theAttributes.value(QLatin1String("type"));
    if (!type.isEmpty())
        return type.at(0).toLatin1();
    return theSection == Section::TRANSFERS ? 'F' : theSection == Section::EXPRESS_FEES ? 'X' : 'B';
}

bool isLower(char theLetter)
{
    return theLetter >= 'a' && theLetter <= 'z';
}

VelDiscountModel modelOf(char theLetter)
{
    const char upper = isLower(theLetter) ? static_cast<char>(theLetter - 'a' + 'A') : theLetter;
    for (const auto& model : MODELS)
        if (model.myLetter == upper)
            return model.myModel;
    return DISCOUNT_MODEL_UNDEFINED;
}

std::int64_t offerEnd(const QXmlStreamAttributes& theAttributes)
{
    const QString text = theAttributes.value(QLatin1String("end_offer_date")).toString();
    return text.isEmpty() ? 0 : QDateTime::fromString(text, Qt::ISODate).toSecsSinceEpoch();
}

void readPrice(const QXmlStreamAttributes& theAttributes, ArticleRow& theArticle)
{
    const char letter = letterOf(theAttributes, theArticle.mySection);
    const bool isFee = theArticle.mySection == Section::TRANSFERS || theArticle.mySection == Section::EXPRESS_FEES;
    PriceRow row{};
    row.myModel = modelOf(letter);
    row.myLevel = number(theAttributes, "level", 0);
    row.myQuantity = number(theAttributes, "quantity", 0);
    row.myPrice = number(theAttributes, "price", -1);
    row.myOldPrice = number(theAttributes, "non_offer_price", -1);
    row.myOfferEnd = offerEnd(theAttributes);
    row.myBaseTransfer = number(theAttributes, "transfer_base_price", 0);
    row.myUnitTransfer = number(theAttributes, "transfer_unit_price", 0);
    row.myIsPackage = !isLower(letter) && !isFee;
    for (const int input : spread(theAttributes.value(QLatin1String("input_source")), INPUT_NUMBERS)) {
        for (const int delivery : spread(theAttributes.value(QLatin1String("delivery_type")), DELIVERY_NUMBERS)) {
            row.mySource = input * 3 + delivery;
            theArticle.myPrices.push_back(row);
        }
    }
}

auto place(const PriceRow& theRow)
{
    return std::make_tuple(theRow.mySource, theRow.myModel, theRow.myLevel);
}

/// Of several rows with one place the last wins; then each gets its upper limit.
void settle(std::vector<PriceRow>& theRows)
{
    std::stable_sort(theRows.begin(), theRows.end(), [](const PriceRow& theLeft, const PriceRow& theRight) {
        return place(theLeft) < place(theRight);
    });
    std::vector<PriceRow> settled;
    for (const PriceRow& row : theRows) {
        if (!settled.empty() && place(settled.back()) == place(row))
            settled.pop_back();
        settled.push_back(row);
    }
    for (std::size_t index = 0; index < settled.size(); ++index) {
        const bool hasNext = index + 1 < settled.size() && settled[index + 1].mySource == settled[index].mySource &&
                             settled[index + 1].myModel == settled[index].myModel &&
                             settled[index + 1].myLevel == settled[index].myLevel + 1;
        settled[index].myUpperLimit = hasNext ? settled[index + 1].myQuantity - 1 : -1;
    }
    theRows.swap(settled);
}

ArticleRow readArticle(QXmlStreamReader& theReader, Section theSection)
{
    const QXmlStreamAttributes attributes = theReader.attributes();
    ArticleRow article{};
    article.mySection = theSection;
    article.myId = number(attributes, "id", 0);
    article.myGroup = number(attributes, theSection == Section::PAYMENT_FEES ? "pay_method_id" : "group", -1);
    article.myTransferModel = number(attributes, "model", 1) == 2 ? TRANSFER_MODEL_2 : TRANSFER_MODEL_1;
    article.myIsPrintFun =
        theSection == Section::ARTICLES && attributes.value(QLatin1String("arrangement")) != QLatin1String("trivial");
    while (theReader.readNextStartElement()) {
        const bool isPrices =
            theReader.name() == QLatin1String("base_prices") || theReader.name() == QLatin1String("discount_prices");
        const bool isLinks = theReader.name() == QLatin1String("linked_articles");
        while (theReader.readNextStartElement()) {
            if (isPrices)
                readPrice(theReader.attributes(), article);
            else if (isLinks)
                article.myLinks.push_back(number(theReader.attributes(), "id", -1));
            theReader.skipCurrentElement();
        }
    }
    settle(article.myPrices);
    std::sort(article.myLinks.begin(), article.myLinks.end());
    return article;
}

} // namespace

std::vector<ArticleRow> readPriceRows(const QByteArray& thePriceList)
{
    std::vector<ArticleRow> articles;
    QXmlStreamReader reader(thePriceList);
    reader.readNextStartElement();
    while (reader.readNextStartElement()) {
        while (reader.readNextStartElement()) {
            const auto section = std::find_if(std::begin(SECTIONS), std::end(SECTIONS), [&](const auto& theSection) {
                return reader.name() == QLatin1String(theSection.myName);
            });
            if (section == std::end(SECTIONS))
                reader.skipCurrentElement();
            else
                articles.push_back(readArticle(reader, section->mySection));
        }
    }
    return articles;
}
