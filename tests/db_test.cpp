// SPDX-License-Identifier: MIT
#include "app/syncsingleton.h"
#include "db/databasemanager.h"
#include "log/hlogmanager.h"
#include "tests/support.h"

#include <QProcess>
#include <QSqlTableModel>

#include <gtest/gtest.h>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

/// The table "item" and its sequence on a server, `db` and the default connection to it. What a
/// test does is held against its reference, database/<test>.txt: the log, into which the answers
/// go too.
class Database : public testing::Test
{
protected:
    static void SetUpTestSuite()
    {
        for (const char *const name : {"PGPORT", "PGOPTIONS", "PGSSLMODE", "PGCLIENTENCODING"})
            qunsetenv(name);
        qputenv("LC_ALL", "C.UTF-8");
        server = std::make_unique<QProcess>();
        server->setProcessChannelMode(QProcess::ForwardedErrorChannel);
        server->start(support::sourceDir() + "/tests/postgres-server"_L1, {u"till"_s, password});
        ASSERT_TRUE(server->waitForReadyRead(120'000));
        host = QString::fromUtf8(server->readLine()).trimmed();
        home = std::make_unique<support::Home>();
        qputenv("HOME", home->path().toUtf8());
        const QString settings =
            u"zentaro : { logger : { filename = log; type = append; basedir = \"%1\"; };"
            " db : { dbname = postgres; username = till; password = \"%2\"; hostname = \"%3\"; }; };"_s;
        support::writeFile(home->configurationPath(),
                           settings.arg(home->path(), password, host).toUtf8());
        SyncSingleton<HLogManager>::instance()->set({}, {});
    }
    static void TearDownTestSuite()
    {
        server->closeWriteChannel();
        EXPECT_TRUE(server->waitForFinished(120'000));
        server.reset();
        home.reset();
    }

    Database()
    {
        connect({});
        manager.executeQuery(
            u"set client_min_messages = warning; drop table if exists item; create table item"
            " (id serial primary key, name text default 'new', price numeric(20, 2));"
            "insert into item values (default, 'caff\u00e8 \u20ac ''x'' \"y\\', 1.5),"
            " (default, null, 123456789012345678.1)"_s);
        db = connect(u"till"_s);
        QFile::resize(home->path(u"log"_s), 0);
        testing::internal::CaptureStderr();
    }
    ~Database() override
    {
        EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
        QByteArray told = support::withoutTimeStamps(support::readFile(home->path(u"log"_s)));
        told.replace(host.toUtf8(), "HOST").replace(home->path().toUtf8(), "HOME");
        const auto *const test = testing::UnitTest::GetInstance()->current_test_info();
        support::expectReference(support::sourceDir() + "/tests/database/"_L1
                                     + QLatin1StringView(test->name()) + ".txt"_L1,
                                 told);
    }

    QSqlDatabase *connect(const QString &name, const QString &word = password,
                          const QString &folderOfSocket = host)
    {
        return manager.createConnection(u"QPSQL7"_s, u"postgres"_s, u"till"_s, word, folderOfSocket,
                                        name);
    }

    /// Notes an answer, below what was logged on the way to it.
    static void tell(const QVariant &answer)
    {
        const bool list = answer.typeId() == QMetaType::QStringList;
        SyncSingleton<HLogManager>::instance()->getLog({})->info(
            list ? answer.toStringList().join(u'|') : answer.toString());
    }

    static inline const QString password = u"s3cret 'word'"_s;
    static inline QString host;
    static inline std::unique_ptr<QProcess> server;
    static inline std::unique_ptr<support::Home> home;
    DatabaseManager &manager = *SyncSingleton<DatabaseManager>::instance();
    QSqlDatabase *db = nullptr;
};

} // namespace

TEST_F(Database, Queries)
{
    const QString all = u"select id, name, price from %1 order by id"_s;
    for (const QString &table : {u"item"_s, u"missing"_s}) {
        tell(manager.getField(table, u"name"_s, u"1"_s, db));
        tell(manager.getField(table, u"price"_s, u"9"_s, db));
        tell(manager.existRecord(table, u"2"_s, db));
        tell(manager.existRecord(table, u"9"_s, db));
        tell(manager.numRecords(table, u"price > 1"_s, db));
        tell(manager.executeSelectQuery(all.arg(table), db));
        tell(manager.executeSelectQuery2(all.arg(table), db));
        for (const int columns : {2, 9, 0, -1})
            tell(manager.executeSelectQuery3(all.arg(table), columns, db));
        tell(manager.newRecord(table, db));
        tell(manager.safeNewRecord(table, db));
        tell(manager.removeRecord(table, u"2"_s, db));
        tell(manager.executeQuery("delete from "_L1 + table, db));
        tell(manager.getLastId(table, db)); // of an empty table
    }
    const QString never[] = {{},
                             u"update item set price = 0; --\0 where id = 1"_s,
                             u"copy item to stdout"_s,
                             u"select 'a;' ; /* /* ; */ */ COPY (select ';') -- ;\n TO/**/STDOUT"_s,
                             u"select E'\\''; copy item from stdin; select ''"_s,
                             u"select 1 as \u00e9$x$; copy item to stdout; select 1 as b$x$"_s,
                             u"select $x$a$X$b$x$; copy item to stdout; select $x$c$x$"_s,
                             u"select 1 --\r; copy item to stdout"_s};
    for (const QString &query : never)
        tell(manager.executeQuery(query, db));
    const QString fine =
        u"select ';copy a to stdout', E'\\';copy a to stdout', $x$;copy a to stdout$x$"
        " as \";copy a to stdout\" -- ;copy a to stdout"_s;
    tell(manager.executeSelectQuery3(fine, 3, db));
}

TEST_F(Database, Sequences)
{
    constexpr qint64 Highest = std::numeric_limits<qint64>::max();
    const QString sequence = u"item_id_seq"_s;
    manager.executeQuery(u"alter sequence item_id_seq as bigint"_s);
    tell(manager.setSequence(sequence, 5'000'000'000, db));
    tell(manager.incrementSequence(sequence, 7, db));
    tell(manager.incrementSequence(sequence, Highest, db));
    tell(manager.decrementSequence(sequence, -Highest - 1, db)); // has no negative
    tell(manager.decrementSequence(sequence, 5'000'000'000, db));
    tell(manager.decrementSequenceIfPositive(sequence, 8, db));
    tell(manager.decrementSequenceIfPositive(sequence, 6, db));
    manager.executeQuery(u"alter sequence item_id_seq minvalue 0"_s);
    tell(manager.decrementSequenceIfPositive(sequence, 1, db)); // down to 0
    tell(manager.sequenceValue(u"missing"_s, db));
    tell(manager.setSequence(u"missing"_s, 1, db));
    // The value that decides is read on the default connection, also for one without sequences.
    tell(manager.decrementSequenceIfPositive(
        sequence, 0, manager.createConnection(u"QSQLITE"_s, {}, {}, {}, {}, u"other"_s)));
}

TEST_F(Database, Transactions)
{
    QSqlDatabase *const witness = connect(u"witness"_s);
    for (QSqlDatabase *const worker : {db, static_cast<QSqlDatabase *>(nullptr)}) {
        for (const bool keep : {false, true}) {
            manager.begin(worker);
            tell(manager.executeQuery(u"insert into item values(default)"_s, worker));
            tell(manager.numRecords(u"item"_s, u"true"_s, witness));
            keep ? manager.commit(worker) : manager.rollback(worker);
            tell(manager.numRecords(u"item"_s, u"true"_s, witness));
        }
    }
}

TEST_F(Database, Failures)
{
    tell(manager.createConnection(u"QNONE"_s, {}, {}, {}, {}, u"none"_s) != nullptr);
    tell(connect(u"wrong"_s, u"guess"_s) != nullptr);
    manager.executeQuery(u"set application_name = 'till'"_s, db);
    tell(manager.executeSelectQuery(u"select pg_terminate_backend(pid, 60000) from pg_stat_activity"
                                    " where application_name = 'till'"_s));
    tell(manager.getField(u"item"_s, u"name"_s, u"1"_s, db)); // lost in the middle
    manager.begin(db);
    tell(connect(u"till"_s) == db);
    tell(manager.existRecord(u"item"_s, u"1"_s, db));
    tell(connect(u"till"_s, password, host + "/down"_L1) != nullptr);
    tell(manager.executeQuery(u"select 1"_s, db));
}

TEST_F(Database, Embedded)
{
    const auto open = [&](const QString &file) {
        return manager.createConnection(u"QSQLITE"_s, home->path(file), {}, {}, {}, u"file"_s);
    };
    QSqlDatabase *const file = open(u"one"_s);
    manager.executeQuery(u"create table goods (id integer primary key, name text unique)"_s, file);
    tell(manager.executeQuery(u"insert into goods values (7, 'a'), (8, 'b')"_s, file));
    manager.begin(file);
    manager.removeRecord(u"goods"_s, u"8"_s, file);
    manager.rollback(file);
    tell(manager.getLastId(u"goods"_s, file));
    {
        QSqlTableModel cursor(nullptr, *file);
        cursor.setTable(u"goods"_s);
        manager.showCursorError(u"fill"_s, cursor);
        manager.executeQuery(u"drop table goods"_s, file);
        cursor.select();
        manager.showCursorError(u"fill"_s, cursor);
    }
    tell(open(u"two"_s) == file);
    tell(manager.getLastId(u"goods"_s, file));
}

TEST_F(Database, Exit)
{
    QProcess::execute(u"localedef"_s, {u"-i"_s, u"it_IT"_s, u"-f"_s, u"ISO-8859-1"_s,
                                       home->path(u"it_IT.ISO-8859-1"_s)});
    // The C library itself leaks where locales lie in a folder of their own.
    const QStringList latin1 = {u"LC_ALL=it_IT.ISO-8859-1"_s, "LOCPATH="_L1 + home->path(),
                                u"ASAN_OPTIONS=detect_leaks=0"_s};
    for (const auto &[words, variables] : {std::pair{QStringList(), QStringList()},
                                           std::pair{QStringList(u"application"_s), latin1}}) {
        const support::Outcome outcome =
            support::run(QStringLiteral(ZENTARO_DB_PROBE), words, *home, variables);
        EXPECT_EQ(outcome.errors, "");
        EXPECT_EQ(outcome.exitStatus, 0);
    }
    EXPECT_EQ(support::run(QStringLiteral(ZENTARO_EXAMPLE), {}, *home).exitStatus, 0);
    tell(manager.getField(u"item"_s, u"name"_s, u"1"_s));
}
