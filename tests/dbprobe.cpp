// SPDX-License-Identifier: MIT
#include "app/syncsingleton.h"
#include "db/databasemanager.h"
#include "log/hlogmanager.h"
#include "util/hlibrary.h"

#include <QCoreApplication>

#include <memory>

using namespace Qt::StringLiterals;

/// Uses the shared libraries as a program does, and ends with connections, queries and Loggers open
/// and the application object gone ("application") or never there.
int main(int argc, char **argv)
{
    const auto application = argc > 1 ? std::make_unique<QCoreApplication>(argc, argv) : nullptr;
    DatabaseManager unlogged; // made before there is a Logger
    unlogged.executeQuery(u"nonsense"_s, unlogged.createConnection(u"QSQLITE"_s, u":memory:"_s, {},
                                                                   {}, {}, u"embedded"_s));
    auto &loggers = *SyncSingleton<HLogManager>::instance();
    loggers.set(u"replaced"_s, {});
    loggers.set(u"used"_s, {});
    DatabaseManager &manager = *SyncSingleton<DatabaseManager>::instance();
    manager.createConnection(u"QNONE"_s, {}, {}, {}, {}, u"none"_s);
    const QSqlDatabase *const server = HLibrary::newDBConnection({});
    if (!server)
        return 1;
    static const QSqlDatabase copy = *server;
    static const QSqlQuery query(u"select 'left open'"_s, copy);
    loggers.getLog({})->error(manager.executeSelectQuery(u"select '1\u20ac, citt\u00e0'"_s));
    return 0;
}
