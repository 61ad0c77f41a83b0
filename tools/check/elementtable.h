// SPDX-License-Identifier: MIT
#pragma once

#include "render/settings.h"

#include <QStringList>

#include <span>
#include <vector>

class QXmlAttributes;

/// What the document methods read of a request: the elements that each reacts to and their
/// attributes.
namespace requestcheck {

/// A column that the value of an attribute is printed in, where it has one.
enum class Column {
    None,
    Quantity,
    Description, ///< cut to what the other columns leave
    Price,       ///< also the amount of a statement
    Total,
    Date,
    TaxRate,
    Money, ///< of the table of tax rates
    Sign,  ///< of a variant, before its name
};

/// The width of a column in characters; -1 for one without a width of its own.
int widthOf(Column column, const DocumentSettings &settings);

struct AttributeUse
{
    QLatin1StringView name;
    QLatin1StringView text; ///< what its value is, for the documentation
    Column column = Column::None;
    bool DocumentSettings::*onlyIf = nullptr; ///< the switch that it is printed under
    bool isPrinted = true;
};

/// What an element reads beside its named attributes.
enum class Rest {
    Nothing,
    InOrder, ///< those behind them, one after the other, whatever their names
    Triples, ///< likewise, three for each document
    Ignored, ///< the element prints nothing, and takes any
};

/// What an element is for its document, which is incomplete without one of each that it reads.
enum class Role { Other, Item, Total };

/// An element as some document methods read it.
struct ElementRow
{
    QStringView element;
    quint16 methods;          ///< bit i: the method at i of documentMethods
    QLatin1StringView prints; ///< what it prints, for the documentation; words in backquotes
    std::span<const AttributeUse> attributes;
    Role role = Role::Other;
    bool DocumentSettings::*onlyIf = nullptr; ///< the switch that its attributes are printed under
    Rest rest = Rest::Nothing;
    QLatin1StringView setting{}; ///< the key word of another that shapes it, beside the widths
    bool hidesMarked = false;    ///< an item whose name begins with `=` is never printed

    /// The attribute of this name, or null.
    const AttributeUse *find(QStringView name) const;
    /// Whether it is a command of the fiscal printer, which is checked as such.
    bool isFiscal() const { return find(u"department"); }
    /// Whether it prints its attributes in columns.
    bool hasColumns() const;
};

/// The element as the method at `method` of documentMethods reads it, or null.
const ElementRow *elementRow(QStringView element, qsizetype method);
/// The element that names the document method, which all documents read.
extern const ElementRow methodElement;
/// The first element that has the role in a document; empty without one.
QString elementWith(Role role, qsizetype method);
/// Whether any document reads an element of this name.
bool isElement(QStringView name);
/// The names of the documents that read the element.
QStringList documentsWith(QStringView element);
/// The rows that a document reads, those of its top first.
std::vector<const ElementRow *> rowsOf(qsizetype method);
/// The name of the document method that is nearest to a word; empty when none is near.
QString methodNear(QStringView word);
/// What a document is, in half a sentence.
QLatin1StringView summaryOf(qsizetype method);
/// All rows.
std::span<const ElementRow> elementRows();

/// Whether a switch is off; null is none.
inline bool isOff(const DocumentSettings &settings, bool DocumentSettings::*aSwitch)
{
    return aSwitch && !(settings.*aSwitch);
}
/// The key word of a switch; empty for null.
QString keyWordOf(bool DocumentSettings::*aSwitch);

/// What becomes of an attribute.
enum class Fate { Printed, SwitchedOff, Kept, Unread };

/// The fate of the attribute at `position` under the settings.
Fate fateOf(const ElementRow &row, const QXmlAttributes &atts, int position,
            const DocumentSettings &settings);

} // namespace requestcheck
