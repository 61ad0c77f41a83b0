// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <span>

class PrinterDriver;
class QXmlAttributes;

/// What choosing a document method does to the driver's duplicate flag.
enum class DuplicateFlag { Unchanged, Set, Cleared };

/// One document method: what the `method` element calls it, the document type whose settings it
/// prints with, and the operation that prints its elements.
struct DocumentMethod
{
    QLatin1StringView name;
    QLatin1StringView settingsType;
    DuplicateFlag duplicate;
    void (PrinterDriver::*print)(const QString &, const QXmlAttributes &);
};

/// All methods, in the order of the driver's operations.
std::span<const DocumentMethod> documentMethods();

/// The method of exactly this name, or null.
const DocumentMethod *documentMethod(QStringView name);
