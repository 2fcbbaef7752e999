#include "benchmarks/SqlitePricing.h"

#include <QtGlobal>

#include <sqlite3.h>

#include <initializer_list>

namespace {

const char SCHEMA[] = "CREATE TABLE band (article INTEGER, level INTEGER, model INTEGER, quantity INTEGER,"
                      " upper_limit INTEGER, cents INTEGER, is_package INTEGER, base_transfer INTEGER,"
                      " unit_transfer INTEGER, PRIMARY KEY (article, level DESC)) WITHOUT ROWID;"
                      "BEGIN;"; // one transaction for everything spares each query one of its own
const char INSERT[] = "INSERT INTO band VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?)";
const char REACHED[] = "SELECT model, level, quantity, upper_limit, cents, is_package, base_transfer, unit_transfer"
                       " FROM band WHERE article = ?1 AND quantity <= ?2 ORDER BY level DESC";

void bind(sqlite3_stmt* theStatement, std::initializer_list<int> theValues)
{
    int place = 0;
    for (const int value : theValues)
        sqlite3_bind_int(theStatement, ++place, value);
}

} // namespace

void SqlitePricing::Closer::operator()(sqlite3* theDatabase) const
{
    sqlite3_close(theDatabase);
}

void SqlitePricing::Closer::operator()(sqlite3_stmt* theStatement) const
{
    sqlite3_finalize(theStatement);
}

SqlitePricing::SqlitePricing(const std::vector<std::vector<FlatBand>>& theArticles)
{
    sqlite3* database = nullptr;
    sqlite3_open_v2(":memory:", &database, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE | SQLITE_OPEN_NOMUTEX, nullptr);
    myDatabase.reset(database);
    execute(SCHEMA);
    const Statement insert = prepared(INSERT);
    int article = 0;
    for (const std::vector<FlatBand>& bands : theArticles) {
        for (const FlatBand& band : bands) {
            bind(insert.get(), {article, band.myLevel, band.myModel, band.myQuantity, band.myUpperLimit, band.myPrice,
                                band.myIsPackage, band.myBaseTransfer, band.myUnitTransfer});
            sqlite3_step(insert.get());
            sqlite3_reset(insert.get());
        }
        ++article;
    }
    execute("ANALYZE");
    myStatement = prepared(REACHED);
}

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

const std::vector<FlatBand>& SqlitePricing::reached(const CartItem& theItem)
{
    sqlite3_stmt* query = myStatement.get();
    bind(query, {theItem.myArticle, theItem.myCount});
    const auto number = [query](int theColumn) { return sqlite3_column_int(query, theColumn); };
    myReached.clear();
    while (sqlite3_step(query) == SQLITE_ROW)
        myReached.push_back({static_cast<VelDiscountModel>(number(0)), number(1), number(2), number(3), number(4),
                             number(5) != 0, number(6), number(7)});
    sqlite3_reset(query);
    return myReached;
}

FlatBill SqlitePricing::bill(const std::vector<CartItem>& theCart, FlatLine* theLines)
{
    FlatBill bill(theLines);
    for (const CartItem& item : theCart) {
        const std::vector<FlatBand>& bands = reached(item);
        bill.add(item, &bands.front(), &bands.back());
    }
    return bill;
}
