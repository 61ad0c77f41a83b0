// SPDX-License-Identifier: MIT
#pragma once

#include <QFile>

/// The requests that the benchmark prints, written into a folder.
namespace inputs {

/// Opens the file. Ends the program when it cannot be opened: there is nothing to measure then.
void openFor(QFile &file, QIODevice::OpenMode mode);

/// A receipt with the headers of a real one and `items` items; 25 make 3 KB, 380,000 make 40 MB.
void writeReceipt(const QString &path, int items);

/// A list of `items` sold items and nothing else.
void writeSoldList(const QString &path, int items);

/// A home folder's configuration: the sample for 40 columns, with the Italian translation.
void writeConfiguration(const QString &home);

} // namespace inputs
