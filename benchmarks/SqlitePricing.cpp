#include "benchmarks/SqlitePricing.h"

#include <QtGlobal>

#include <sqlite3.h>

#include <algorithm>
#include <initializer_list>

namespace {

const char SCHEMA[] =
    "CREATE TABLE price (article INTEGER, source INTEGER, model INTEGER, level INTEGER, quantity INTEGER,"
    " upper_limit INTEGER, cents INTEGER, old_cents INTEGER, offer_end INTEGER, is_package INTEGER,"
    " base_transfer INTEGER, unit_transfer INTEGER, PRIMARY KEY (article, source, model, level DESC)) WITHOUT ROWID;"
    "CREATE TABLE link (add_on INTEGER, article INTEGER, PRIMARY KEY (add_on, article)) WITHOUT ROWID;"
    "CREATE TABLE article (id INTEGER PRIMARY KEY, number INTEGER);"
    "CREATE TABLE transfer (shipping_group INTEGER PRIMARY KEY, article INTEGER, model INTEGER);"
    "BEGIN;"; // one transaction for everything spares each query one of its own

const char INSERT_PRICE[] = "INSERT INTO price VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)";
const char INSERT_LINK[] = "INSERT OR IGNORE INTO link SELECT ?1, number FROM article WHERE id = ?2";

// 8 inherits its level, 5 asks for the bill sum, all others for the quantity. The highest level comes first.
const char REACHED[] =
    "SELECT model, level, quantity, upper_limit, cents, old_cents, offer_end, is_package FROM price"
    " WHERE article = ?1 AND source = ?2 AND CASE model WHEN 8 THEN level <= ?5 WHEN 5 THEN quantity <= ?4"
    " ELSE level = 0 OR quantity <= ?3 END ORDER BY model, level DESC";
const char IS_LINKED[] = "SELECT 1 FROM link WHERE add_on = ?1 AND article = ?2";
const char TRANSFER_PRICES[] = "SELECT base_transfer, unit_transfer FROM price"
                               " WHERE article = ?1 AND source = ?2 AND model = 1 AND level = 0";
const char TRANSFER[] = "SELECT article, model FROM transfer WHERE shipping_group = ?1";

/// A statement at work, reset at the end.
class Query
{
    Q_DISABLE_COPY(Query)

public:
    Query(sqlite3_stmt* theStatement, std::initializer_list<sqlite3_int64> theValues) : myStatement(theStatement)
    {
        int place = 0;
        for (const sqlite3_int64 value : theValues)
            sqlite3_bind_int64(myStatement, ++place, value);
    }
    ~Query() { sqlite3_reset(myStatement); }

    bool next() { return sqlite3_step(myStatement) == SQLITE_ROW; }
    int number(int theColumn) { return sqlite3_column_int(myStatement, theColumn); }
    sqlite3_int64 bigNumber(int theColumn) { return sqlite3_column_int64(myStatement, theColumn); }

private:
    sqlite3_stmt* myStatement;
};

} // namespace

void SqlitePricing::Closer::operator()(sqlite3* theDatabase) const
{
    sqlite3_close(theDatabase);
}

void SqlitePricing::Closer::operator()(sqlite3_stmt* theStatement) const
{
    sqlite3_finalize(theStatement);
}

SqlitePricing::SqlitePricing(const std::vector<ArticleRow>& theArticles)
{
    sqlite3* database = nullptr;
    sqlite3_open_v2(":memory:", &database, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE | SQLITE_OPEN_NOMUTEX, nullptr);
    myDatabase.reset(database);
    execute(SCHEMA);
    myInsertPrice = prepared(INSERT_PRICE);
    myInsertLink = prepared(INSERT_LINK);
    for (std::size_t number = 0; number < theArticles.size(); ++number)
        insert(static_cast<int>(number), theArticles[number]);
    execute("ANALYZE");
    myReached = prepared(REACHED);
    myIsLinked = prepared(IS_LINKED);
    myTransferPrices = prepared(TRANSFER_PRICES);
    myTransfer = prepared(TRANSFER);
}

// ---- filling

void SqlitePricing::execute(const char* theSql)
{
    if (sqlite3_exec(myDatabase.get(), theSql, nullptr, nullptr, nullptr) != SQLITE_OK)
        qFatal("SQLite: %s", sqlite3_errmsg(myDatabase.get()));
}

SqlitePricing::Statement SqlitePricing::prepared(const char* theSql)
{
    sqlite3_stmt* statement = nullptr;
    if (sqlite3_prepare_v3(myDatabase.get(), theSql, -1, SQLITE_PREPARE_PERSISTENT, &statement, nullptr) != SQLITE_OK)
        qFatal("SQLite: %s", sqlite3_errmsg(myDatabase.get()));
    return Statement(statement);
}

void SqlitePricing::insert(int theNumber, const ArticleRow& theArticle)
{
    const Statement article = prepared("INSERT INTO article VALUES (?, ?)");
    Query(article.get(), {theArticle.myId, theNumber}).next();
    if (theArticle.mySection == Section::ADD_ONS) {
        myFirstAddOn = myLastAddOn < 0 ? theNumber : myFirstAddOn;
        myLastAddOn = theNumber;
    }
    if (theArticle.mySection == Section::TRANSFERS) {
        const Statement transfer = prepared("INSERT INTO transfer VALUES (?, ?, ?)");
        Query(transfer.get(), {theArticle.myGroup, theNumber, theArticle.myTransferModel}).next();
    }
    for (const int id : theArticle.myLinks)
        Query(myInsertLink.get(), {theNumber, id}).next();
    for (const PriceRow& row : theArticle.myPrices)
        Query(myInsertPrice.get(),
              {theNumber, row.mySource, row.myModel, row.myLevel, row.myQuantity, row.myUpperLimit, row.myPrice,
               row.myOldPrice, row.myOfferEnd, row.myIsPackage, row.myBaseTransfer, row.myUnitTransfer})
            .next();
}

// ---- computing

/// The bands that the query reaches, until the next query.
FlatPrices SqlitePricing::prices(int theArticle, int theSource, const FlatQuery& theQuery)
{
    myBands.clear();
    myLadders.clear();
    Query query(myReached.get(),
                {theArticle, theSource, theQuery.myCount, theQuery.myBillingSum, theQuery.myInheritedLevel});
    while (query.next()) {
        const auto model = static_cast<VelDiscountModel>(query.number(0));
        if (myLadders.empty() || myLadders.back().myModel != model)
            myLadders.push_back({model, static_cast<int>(myBands.size()), 0});
        ++myLadders.back().myCount;
        myBands.push_back({query.bigNumber(6), query.number(1), query.number(2), query.number(3), query.number(4),
                           query.number(5), query.number(7) != 0});
    }
    return {myLadders.data(), static_cast<int>(myLadders.size()), myBands.data()};
}

int SqlitePricing::inheritedLevel(int theAddOn, const FlatLine* theBegin, const FlatLine* theEnd)
{
    int highest = 0;
    int former = -1;
    for (const FlatLine* line = theBegin; line != theEnd; ++line) {
        if (line->myLevel > highest && line->myArticle != former &&
            Query(myIsLinked.get(), {theAddOn, line->myArticle}).next())
            highest = line->myLevel;
        former = line->myArticle;
    }
    return highest;
}

int SqlitePricing::makeLines(const CartItem* theCart, int theItems, int theSource, FlatLine* theLines)
{
    FlatLine* end = theLines;
    for (const CartItem* item = theCart; item != theCart + theItems; ++item) {
        const int level = isAddOn(item->myArticle) ? inheritedLevel(item->myArticle, theLines, end) : 0;
        const FlatQuery query{item->myCount, 0, level};
        const FlatPrices found = prices(item->myArticle, theSource, query);
        end = writeLines(found, flatAnswer(found, query), item->myCount, item->myArticle, end);
    }
    return static_cast<int>(end - theLines);
}

int SqlitePricing::transferByProducts(const CartItem* theCart, int theItems, int theSource)
{
    int highest = 0;
    int units = 0;
    int leadersUnit = 0;
    for (int item = 0; item < theItems; ++item) {
        Query query(myTransferPrices.get(), {theCart[item].myArticle, theSource});
        const bool hasPrice = query.next();
        const int base = hasPrice ? query.number(0) : 0;
        const int unit = hasPrice ? query.number(1) : 0;
        if (item == 0 || base > highest) {
            highest = base;
            leadersUnit = unit;
        }
        units += unit * theCart[item].myCount;
    }
    return highest + units - leadersUnit;
}

int SqlitePricing::transferFee(const CartItem* theCart, int theItems, int theGroup, int theSource, int theSum,
                               int theCount)
{
    Query transfer(myTransfer.get(), {theGroup});
    if (!transfer.next())
        return 0;
    if (transfer.number(1) == TRANSFER_MODEL_2)
        return transferByProducts(theCart, theItems, theSource);
    const FlatQuery query{theCount, theSum, 0};
    return flatAnswer(prices(transfer.number(0), theSource, query), query).myPrice;
}

int SqlitePricing::total(const CartItem* theCart, int theItems, int theGroup, int theSource, const FlatLine* theLines,
                         int theLineCount)
{
    int sum = 0;
    int count = 0;
    for (const FlatLine* line = theLines; line != theLines + theLineCount; ++line) {
        sum += line->myUnitPrice * line->myUnitCount;
        count += isAddOn(line->myArticle) ? 0 : line->myCountItems;
    }
    const bool isFree = isShippingFree(theLines, theLineCount);
    return std::max(0, sum + (isFree ? 0 : transferFee(theCart, theItems, theGroup, theSource, sum, count)));
}
