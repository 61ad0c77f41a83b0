// SPDX-License-Identifier: MIT
#include "app/syncsingleton.h"
#include "db/databasemanager.h"
#include "log/hlogmanager.h"
#include "util/hlibrary.h"

#include <QCoreApplication>

#include <cstdio>
#include <memory>

using namespace Qt::StringLiterals;

/// Uses the shared libraries as a program does, and ends with connections, queries and Loggers open
/// and the application object gone ("application") or never there.
int main(int argc, char **argv)
{
    const auto application = argc > 1 ? std::make_unique<QCoreApplication>(argc, argv) : nullptr;
    DatabaseManager unlogged; // made before there is a Logger
    QSqlDatabase *const embedded =
        unlogged.createConnection(u"QSQLITE"_s, u":memory:"_s, {}, {}, {}, u"embedded"_s);
    unlogged.executeQuery(u"nonsense"_s, embedded);

    auto &loggers = *SyncSingleton<HLogManager>::instance();
    loggers.set(u"replaced"_s, {});
    Logger *const replaced = loggers.getLog({});
    loggers.set(u"used"_s, {});
    DatabaseManager &manager = *SyncSingleton<DatabaseManager>::instance();
    manager.createConnection(u"QNONE"_s, {}, {}, {}, {}, u"none"_s);
    QSqlDatabase *const server = HLibrary::newDBConnection({});
    if (!server || !embedded->isOpen())
        return 1;
    static const QSqlDatabase copy = *server;
    static const QSqlQuery query(u"select 'left open'"_s, copy);
    const QString text = manager.executeSelectQuery(u"select '1\u20ac, citt\u00e0'"_s);
    replaced->error(text);
    std::puts(text.toUtf8().constData());
    return 0;
}
