// SPDX-License-Identifier: MIT
#include "db/databasemanager.h"

#include "app/syncsingleton.h"
#include "log/hlogmanager.h"

#include <QRegularExpression>
#include <QScopeGuard>
#include <QSqlError>
#include <QSqlRecord>
#include <QSqlTableModel>
#include <QVariant>

using namespace Qt::StringLiterals;

namespace {

QString defaultName() { return QLatin1StringView(QSqlDatabase::defaultConnection); }

/// A value as text; empty for NULL, which the toolkit has as "0" in a column of numbers.
QString valueOf(const QSqlQuery &query, int column)
{
    return query.isNull(column) ? QString() : query.value(column).toString();
}

/// The text of an error: the database's, or the driver's where the database had nothing to say,
/// which the PostgreSQL driver writes as an empty error code.
QString textOf(const QSqlError &error)
{
    const QString text = error.databaseText();
    return text.isEmpty() || text == "()"_L1 ? error.driverText() : text;
}

/// Whether a statement of the query copies rows through the connection: the toolkit's driver takes
/// no part in that, and gathers the server's repeated answers until memory runs out.
bool copiesThroughConnection(const QString &text)
{
    if (!text.contains("copy"_L1, Qt::CaseInsensitive))
        return false;
    // What holds no statement: quoted text and names, comments.
    static const QRegularExpression aside(
        uR"((?<![\w$[:^ascii:]])[eE]'(?:[^'\\]++|\\.|'')*+'|'(?:[^']++|'')*+'|"[^"]*+"|)"
        uR"((?<![\w$[:^ascii:]])\$([\w[:^ascii:]]*+)\$.*?\$\1\$|--[^\n\r]*+|)"
        uR"((/\*(?:[^*/]++|(?2)|/(?!\*)|\*(?!/))*+\*/))"_s,
        QRegularExpression::DotMatchesEverythingOption);
    static const QRegularExpression copy(
        uR"((?:^|;)\s*copy\b[^;]*\b(?:from|to)\s+(?:stdin|stdout)\b)"_s,
        QRegularExpression::CaseInsensitiveOption);
    return QString(text).replace(aside, u" "_s).contains(copy);
}

/// Why a query is not handed to the toolkit; empty for one that is.
QString refusal(const QSqlDatabase &connection, const QString &text)
{
    if (text.isEmpty())
        return u"Empty query"_s;
    if (!connection.isOpen())
        return u"Database not open"_s;
    if (text.contains(QChar::Null)) // the driver would send what stands before it
        return u"NUL in the query"_s;
    return copiesThroughConnection(text) ? u"COPY to or from the client"_s : QString();
}

} // namespace

DatabaseManager::DatabaseManager()
    : logger(SyncSingleton<HLogManager>::instance()->getLog({}))
{
}

DatabaseManager::~DatabaseManager() { closeConnections(); }

void DatabaseManager::closeConnections()
{
    for (auto &[name, connection] : connections)
        connection.close();
    connections.clear();
}

QSqlDatabase *DatabaseManager::createConnection(const QString &driver, const QString &dbname,
                                                const QString &username, const QString &password,
                                                const QString &hostname,
                                                const QString &connectionName)
{
    const QString name = connectionName.isEmpty() ? defaultName() : connectionName;
    QSqlDatabase &connection = connections[name];
    connection = QSqlDatabase(); // the toolkit complains when it removes a connection in use
    QSqlDatabase::removeDatabase(name);
    // Made after the toolkit's own record of connections, and so gone before that: even a
    // connection that is not open needs it.
    static const auto closeAtExit = qScopeGuard([] {
        if (DatabaseManager *const manager = SyncSingleton<DatabaseManager>::instance_pointer)
            manager->closeConnections();
    });

    // The toolkit knows this driver by one name only.
    const QString toolkitName = driver == "QPSQL7"_L1 ? u"QPSQL"_s : driver;
    QSqlDatabase added;
    if (QSqlDatabase::isDriverAvailable(toolkitName))
        added = QSqlDatabase::addDatabase(toolkitName, name);
    if (!added.isValid()) {
        log(Logger::ERROR, u"Failed to connect to driver"_s);
        return nullptr;
    }
    added.setDatabaseName(dbname);
    added.setUserName(username);
    added.setPassword(password);
    added.setHostName(hostname);
    if (!added.open()) {
        log(Logger::ERROR, "Failed to open database: "_L1 + added.lastError().driverText());
        log(Logger::ERROR, added.lastError().databaseText());
        return nullptr;
    }
    log(Logger::DEBUG, "Connection With "_L1 + dbname + " DB established"_L1);
    connection = added;
    return &connection;
}

/// Runs and reports a query. One that cannot be sent is not handed to the toolkit, which would tell
/// of it on standard error only, or not at all.
QSqlQuery DatabaseManager::run(const QString &method, const QString &text, QSqlDatabase *db)
{
    const QSqlDatabase connection = db ? *db : QSqlDatabase::database(defaultName(), false);
    QSqlQuery query(connection);
    if (const QString reason = refusal(connection, text); !reason.isEmpty()) {
        logQuery(method, text, query.numRowsAffected());
        logError(method, "query: "_L1 + text, reason);
        return query;
    }
    query.setNumericalPrecisionPolicy(QSql::HighPrecision);
    query.exec(text);
    showQueryError(method, query);
    return query;
}

QString DatabaseManager::firstText(const QString &method, const QString &text, QSqlDatabase *db)
{
    QSqlQuery query = run(method, text, db);
    return query.next() ? valueOf(query, 0) : QString();
}

QString DatabaseManager::getField(const QString &table, const QString &field, const QString &id,
                                  QSqlDatabase *db)
{
    return firstText(u"DatabaseManager::getField(...)"_s,
                     "select "_L1 + field + " from "_L1 + table + " where id = "_L1 + id, db);
}

int DatabaseManager::removeRecord(const QString &table, const QString &id, QSqlDatabase *db)
{
    const QString text = "delete from "_L1 + table + " where ID = "_L1 + id;
    return qMax(0, run(u"removeRecord"_s, text, db).numRowsAffected());
}

bool DatabaseManager::existRecord(const QString &table, const QString &id, QSqlDatabase *db)
{
    const QString text = "select * from "_L1 + table + " where ID = "_L1 + id;
    return run(u"DatabaseManager::existRecord(...)"_s, text, db).next();
}

qint64 DatabaseManager::numRecords(const QString &table, const QString &condition, QSqlDatabase *db)
{
    // Reported under the name of the operation above: logs are searched for it.
    const QString text = "select count(*) from "_L1 + table + " where "_L1 + condition;
    return firstText(u"DatabaseManager::existRecord(...)"_s, text, db).toLongLong();
}

QString DatabaseManager::executeSelectQuery(const QString &query, QSqlDatabase *db)
{
    return firstText(u"executeSelectQuery(...)"_s, query, db);
}

QStringList DatabaseManager::executeSelectQuery2(const QString &query, QSqlDatabase *db)
{
    QStringList values;
    QSqlQuery result = run(u"executeSelectQuery2(...)"_s, query, db);
    while (result.next())
        values += valueOf(result, 0);
    return values;
}

QStringList DatabaseManager::executeSelectQuery3(const QString &query, int n, QSqlDatabase *db)
{
    QStringList values;
    QSqlQuery result = run(u"executeSelectQuery3(...)"_s, query, db);
    const int columns = qMin(n, result.record().count());
    while (result.next()) {
        for (int column = 0; column < columns; ++column)
            values += valueOf(result, column);
    }
    return values;
}

int DatabaseManager::executeQuery(const QString &query, QSqlDatabase *db)
{
    return qMax(0, run(u"executeQuery(...)"_s, query, db).numRowsAffected());
}

QString DatabaseManager::sequenceValue(const QString &sequence, QSqlDatabase *db)
{
    return SyncSingleton<DatabaseManager>::instance()->executeSelectQuery(
        "select last_value from "_L1 + sequence, db);
}

QString DatabaseManager::setSequence(const QString &sequence, qint64 value, QSqlDatabase *db)
{
    return SyncSingleton<DatabaseManager>::instance()->executeSelectQuery(
        "SELECT setval('"_L1 + sequence + "', "_L1 + QString::number(value) + u')', db);
}

QString DatabaseManager::incrementSequence(const QString &sequence, qint64 n, QSqlDatabase *db)
{
    QString before = sequenceValue(sequence, db);
    if (qint64 after = 0; qAddOverflow(before.toLongLong(), n, &after))
        log(Logger::ERROR,
            "incrementSequence( "_L1 + sequence + " ): the value leaves the 64-bit range"_L1);
    else
        setSequence(sequence, after, db);
    return before;
}

QString DatabaseManager::decrementSequence(const QString &sequence, qint64 n, QSqlDatabase *db)
{
    if (qint64 step = 0; !qSubOverflow(qint64(0), n, &step))
        return incrementSequence(sequence, step, db);
    log(Logger::ERROR,
        "decrementSequence( "_L1 + sequence + " ): the step leaves the 64-bit range"_L1);
    return sequenceValue(sequence, db);
}

bool DatabaseManager::decrementSequenceIfPositive(const QString &sequence, qint64 n,
                                                  QSqlDatabase *db)
{
    if (sequenceValue(sequence).toLongLong() < n) // on the default connection, by contract
        return false;
    decrementSequence(sequence, n, db);
    return true;
}

void DatabaseManager::control(const char *word, bool (QSqlDatabase::*operation)(), QSqlDatabase *db)
{
    const QString statement = QLatin1StringView(word);
    if (!db)
        executeQuery(statement);
    else if (!db->isOpen())
        logError(statement.toLower(), "query: "_L1 + statement, u"Database not open"_s);
    else if (!(db->*operation)())
        logError(statement.toLower(), "query: "_L1 + statement, textOf(db->lastError()));
    log(Logger::DEBUG, statement + "\n\n"_L1);
}

QString DatabaseManager::getLastId(const QString &table, QSqlDatabase *db)
{
    const QString text = "select max(ID) from "_L1 + table;
    QSqlQuery query = run(u"getLastId"_s, text, db);
    if (query.next())
        return valueOf(query, 0);
    log(Logger::ERROR, "getLastId( "_L1 + table + " ): "_L1 + text + " return empty result"_L1);
    return u"Error"_s;
}

QString DatabaseManager::newRecord(const QString &table, QSqlDatabase *db)
{
    run(u"newRecord"_s, "insert into "_L1 + table + " values(default)"_L1, db);
    return getLastId(table, db);
}

QString DatabaseManager::safeNewRecord(const QString &table, QSqlDatabase *db)
{
    begin(db);
    QString id = newRecord(table, db);
    commit(db);
    return id;
}

void DatabaseManager::showQueryError(const QString &method, const QSqlQuery &query)
{
    logQuery(method, query.lastQuery(), query.numRowsAffected());
    if (query.lastError().type() != QSqlError::NoError)
        logError(method, "query: "_L1 + query.lastQuery(), query.lastError().databaseText());
}

void DatabaseManager::showCursorError(const QString &method, const QSqlTableModel &cursor)
{
    if (cursor.lastError().type() != QSqlError::NoError)
        logError(method, "cursor: "_L1 + cursor.tableName(), cursor.lastError().databaseText());
}

void DatabaseManager::logQuery(const QString &method, const QString &text, int rowsAffected)
{
    log(Logger::DEBUG, "Query called from method "_L1 + method + ": "_L1 + text);
    log(Logger::DEBUG, "    numRowsAffected: "_L1 + QString::number(rowsAffected));
}

void DatabaseManager::logError(const QString &method, const QString &subject,
                               const QString &databaseText)
{
    log(Logger::ERROR, "Error in the method "_L1 + method + ", to "_L1 + subject);
    log(Logger::ERROR, databaseText);
}

void DatabaseManager::log(Logger::Level level, const QString &text)
{
    if (logger)
        logger->write(level, text);
}
