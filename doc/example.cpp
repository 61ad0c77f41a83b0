// SPDX-License-Identifier: MIT
// A program of the suite: renames an item, on the database and with the log that the user's
// configuration names. The tests build and run it; it links zentaro_util.
#include "app/syncsingleton.h"
#include "app/ztconfiguration.h"
#include "db/databasemanager.h"
#include "log/hlogmanager.h"
#include "util/hlibrary.h"

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    HLogManager &loggers = *SyncSingleton<HLogManager>::instance();
    loggers.set({}, {}); // the default Logger: the database manager takes it when it is made
    const ZTConfiguration &config = *SyncSingleton<ZTConfiguration>::instance();
    const QString name = config.getStrValue(QStringLiteral("zentaro.db.username"));
    loggers.getLog({})->info(QStringLiteral("Started by ") + name);

    QSqlDatabase *const db = HLibrary::newDBConnection(QStringLiteral("till"));
    if (!db) // which any operation would take for the default connection
        return 1;
    QSqlQuery query(*db); // a value from outside is bound, never pasted
    query.prepare(QStringLiteral("update item set name = ? where id = 1"));
    query.addBindValue(name);
    query.exec();
    SyncSingleton<DatabaseManager>::instance()->showQueryError(QStringLiteral("main"), query);
    return 0;
}
