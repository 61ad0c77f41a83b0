// SPDX-License-Identifier: MIT
#include "config/config.h"

#include "config/newfile.h"
#include "text/standardoutput.h"

#include <QFile>

namespace libconfig {
namespace {

void reportFault(const char *operation, const QString &path, const char *fault)
{
    text::printLine(QByteArray("Error in the method Config::") + operation + "( "
                    + QFile::encodeName(path) + " ): " + fault);
}

} // namespace

bool Config::replaceFile(QString path, const char *operation, QStringConverter::Encoding encoding,
                         TreeWriter writeTree)
{
    if (path.isEmpty())
        path = fileName;
    NewFile file(path);
    if (!file.open()) {
        reportFault(operation, path, "Unable To Open File");
        return false;
    }
    QTextStream ts(&file.device());
    ts.setEncoding(encoding);
    if (document)
        (this->*writeTree)(ts);
    ts.flush();
    if (file.finish(ts.status() == QTextStream::Ok))
        return true;
    reportFault(operation, path, "Unable To Write File");
    return false;
}

} // namespace libconfig
