// SPDX-License-Identifier: MIT
#pragma once

#include "log/logger.h"

#include <QSqlDatabase>
#include <QSqlQuery>
#include <QString>
#include <QStringList>

#include <map>

class QSqlTableModel;

/// SQL helpers over named connections; every query and every error goes to the "default" Logger of
/// the log manager, as it was when the manager was made (none: nothing is logged). Taken through
/// SyncSingleton<DatabaseManager>; doc/example.cpp is a program that uses it.
///
/// **Table, field, sequence and condition names, ids and whole queries are pasted into the SQL as
/// they are: nothing is quoted or escaped. It is the caller's duty that they are valid SQL and hold
/// nothing that came from outside unchecked.** The way round it is a prepared query, which
/// showQueryError() reports:
///
///     QSqlQuery query(*db);
///     query.prepare(u"update item set name = ? where id = ?"_s);
///     query.addBindValue(name);
///     query.addBindValue(id);
///     query.exec();
///     manager.showQueryError(u"rename"_s, query);
///
/// **A null connection stands for the toolkit's default connection, and null is what a failed
/// createConnection() answers: who goes on with that works on another database.** Ask the answer
/// before using it.
///
/// No operation throws: what a query that failed answers is told with each, and the cause is in the
/// log. An empty query, one that holds NUL, one on a connection that is not open and a COPY to or
/// from the client are never sent, and fail. Values come as the toolkit's text for them, with
/// numeric columns as the server prints them and NULL as empty text.
///
/// Like the toolkit's connections, the manager and what it hands out belong to one thread.
class DatabaseManager
{
public:
    DatabaseManager();
    DatabaseManager(const DatabaseManager &) = delete;
    DatabaseManager &operator=(const DatabaseManager &) = delete;
    ~DatabaseManager();

    /// Opens a connection under a name, the empty one being the toolkit's default connection.
    /// Drivers are the toolkit's ("QSQLITE"), and "QPSQL7" for "QPSQL". **Answers null**, with the
    /// cause in the log, when the driver is not there or the database does not open; null given to
    /// any other operation means the default connection.
    ///
    /// A connection that a server's restart or the network has cut stays lost, and every query on
    /// it fails, until this is called again under its name, which mends all pointers to it.
    ///
    /// The manager keeps the connection, and the pointer stays valid until the manager goes, which
    /// for the singleton is when the process exits. A name used again closes the connection that it
    /// stood for; all pointers handed out for the name then lead to the new connection, or to one
    /// that is not open where null was answered. Copies of the old one (a table model holds one)
    /// have to be gone by then.
    QSqlDatabase *createConnection(const QString &driver, const QString &dbname,
                                   const QString &username, const QString &password,
                                   const QString &hostname, const QString &connectionName);

    /// The field of the row whose `id` is the one given; empty without such a row.
    QString getField(const QString &table, const QString &field, const QString &id,
                     QSqlDatabase *db = nullptr);
    /// Deletes the row of the id; the number of rows deleted, 0 on failure.
    int removeRecord(const QString &table, const QString &id, QSqlDatabase *db = nullptr);
    /// Whether there is a row of the id; false on failure.
    bool existRecord(const QString &table, const QString &id, QSqlDatabase *db = nullptr);
    /// The number of rows that fulfil the condition, which must not be empty; 0 on failure.
    qint64 numRecords(const QString &table, const QString &condition, QSqlDatabase *db = nullptr);

    /// The first column of the first row; empty without a row.
    QString executeSelectQuery(const QString &query, QSqlDatabase *db = nullptr);
    /// The first column of every row, in row order.
    QStringList executeSelectQuery2(const QString &query, QSqlDatabase *db = nullptr);
    /// The first `n` columns (fewer where the result has fewer) of every row, row after row.
    QStringList executeSelectQuery3(const QString &query, int n, QSqlDatabase *db = nullptr);
    /// Runs any statement; the number of rows affected, 0 on failure.
    int executeQuery(const QString &query, QSqlDatabase *db = nullptr);

    /// The last value of a sequence; empty on failure.
    QString sequenceValue(const QString &sequence, QSqlDatabase *db = nullptr);
    /// Sets a sequence and answers its new value; empty on failure.
    QString setSequence(const QString &sequence, qint64 value, QSqlDatabase *db = nullptr);
    /// Moves a sequence by `n`, and answers the value from before. A step or a sum beyond 64 bits
    /// is logged as an error and changes nothing.
    QString incrementSequence(const QString &sequence, qint64 n, QSqlDatabase *db = nullptr);
    QString decrementSequence(const QString &sequence, qint64 n, QSqlDatabase *db = nullptr);
    /// Moves a sequence down by `n` and answers true, unless its value is below `n`. That value is
    /// read on the default connection, whatever `db` is. True tells of that test alone: where the
    /// move fails, as one down to 0 does on a sequence with the usual lowest value 1, only the log
    /// says so.
    bool decrementSequenceIfPositive(const QString &sequence, qint64 n, QSqlDatabase *db = nullptr);

    /// A transaction of the connection; for a null one the statement is sent as a query.
    void begin(QSqlDatabase *db = nullptr) { control("BEGIN", &QSqlDatabase::transaction, db); }
    void commit(QSqlDatabase *db = nullptr) { control("COMMIT", &QSqlDatabase::commit, db); }
    void rollback(QSqlDatabase *db = nullptr) { control("ROLLBACK", &QSqlDatabase::rollback, db); }

    /// The highest ID of a table: empty when the table is, "Error" when the query failed.
    QString getLastId(const QString &table, QSqlDatabase *db = nullptr);
    /// Inserts a row of defaults and answers getLastId(). The id is another's where two clients
    /// insert at once: safeNewRecord() helps where the transactions are isolated from each other.
    QString newRecord(const QString &table, QSqlDatabase *db = nullptr);
    /// newRecord() in a transaction, which is committed even when the insert failed.
    QString safeNewRecord(const QString &table, QSqlDatabase *db = nullptr);

    /// Logs a query that ran: its text, the rows it affected (-1: it failed) and its last error.
    void showQueryError(const QString &method, const QSqlQuery &query);
    /// Logs the last error of a table model, if it has one; its table is the cursor's name.
    void showCursorError(const QString &method, const QSqlTableModel &cursor);

private:
    QSqlQuery run(const QString &method, const QString &text, QSqlDatabase *db);
    QString firstText(const QString &method, const QString &text, QSqlDatabase *db);
    void control(const char *word, bool (QSqlDatabase::*operation)(), QSqlDatabase *db);
    void logQuery(const QString &method, const QString &text, int rowsAffected);
    void logError(const QString &method, const QString &subject, const QString &databaseText);
    void log(Logger::Level level, const QString &text);
    void closeConnections();

    Logger *const logger;                        // the log manager's; null: nothing is logged
    std::map<QString, QSqlDatabase> connections; // a map: its entries stay where they are
};
