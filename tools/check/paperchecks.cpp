// SPDX-License-Identifier: MIT
#include "tools/check/requestcheck.h"

#include "render/vocabulary.h"
#include "text/localeencoding.h"
#include "tools/preview/preview.h"

#include <QTextCodec>

#include <cmath>

namespace requestcheck {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype Frame = 4; // of a printed line: its quote, and the mark and line end behind it

/// A text as the device prints it.
QString asPrinted(QStringView text) { return text.toString().replace("TOTALE"_L1, "SOMMA"_L1); }

bool hasControl(QStringView text)
{
    return std::ranges::any_of(text, [](QChar c) { return c.unicode() < 0x20; });
}

QString inCharacters(qsizetype count)
{
    return QString::number(count) + (count == 1 ? " character"_L1 : " characters"_L1);
}

/// The first of the characters that `is`; 0 where none is.
char32_t firstOf(const preview::Cells &characters, auto &&is)
{
    const auto found = std::ranges::find_if(characters, is);
    return found == characters.end() ? 0 : *found;
}

} // namespace

// What the value of an attribute does to the line that it is printed in.

void CheckingDevice::checkValue(int position, const AttributeUse *use)
{
    const QString value = atts.value(position);
    const auto *const control =
        std::ranges::find_if(value, [](QChar c) { return c.category() == QChar::Other_Control; });
    if (value.contains(u'\n') || value.contains(u'\r'))
        tellValue("line-feed", position,
                  u"a line end in %1: the printer takes what follows for a command"_s);
    else if (control != value.end())
        tellValue("control-character", position, u"the control character %2 in %1"_s,
                  tools::excerpt(QString(*control)));
    if (!row->isFiscal() && value.contains("\"@"_L1))
        tellValue("end-mark", position, u"`\"@` in %1 ends the printed line early"_s);
    if (std::ranges::any_of(value, [](QChar c) { return c.unicode() >= 0x80; }))
        checkEncoding(position);
    if (use)
        checkMeaning(position, *use);
}

/// Whether the characters are those that were meant, and each is printed, in one column.
void CheckingDevice::checkEncoding(int position)
{
    const QString value = atts.value(position);
    const preview::Cells characters = preview::cellsOf(value);
    const auto isNone = [](char32_t c) { return QChar::isNonCharacter(c); };
    if (value.contains(QChar::ReplacementCharacter))
        return tellValue("undecodable", position,
                         u"%1 has bytes that are not in the encoding of the request"_s);
    if (!value.isValidUtf16() || firstOf(characters, isNone))
        return tellValue("no-character", position, u"a reference in %1 is to no character"_s);
    const QByteArray bytes = requestCodec ? requestCodec->fromUnicode(value) : QByteArray();
    if (requestCodec && QUtf8StringView(bytes).isValidUtf8())
        return tell("mistaken-encoding",
                    u"%1 is %2 in the encoding that the request names, and text in UTF-8"_s.arg(
                        tools::excerpt(atts.qName(position)), tools::excerpt(value)),
                    places.attribute(position), QString::fromUtf8(bytes));
    QTextCodec *const codec = text::localeCodec(); // null for UTF-8, which has them all
    const auto isUnknown = [codec](char32_t c) {
        return codec && c >= 0x80 && text::encoded(QString::fromUcs4(&c, 1), codec) == "?";
    };
    const auto shifts = [&](char32_t c) {
        return c >= 0xA0 && !preview::fillsOneColumn(c) && !isUnknown(c);
    };
    if (const char32_t c = firstOf(characters, isUnknown))
        tellValue("not-in-encoding", position, u"%2 in %1 prints as `?`: it is not in %3"_s,
                  preview::numberOf(c), QString::fromLatin1(codec->name()));
    if (const char32_t c = firstOf(characters, shifts))
        tellValue("character-width", position,
                  u"%2 in %1 does not fill one column from left to right: what follows it shifts"_s,
                  preview::numberOf(c));
}

/// Values that mean something to the device.
void CheckingDevice::checkMeaning(int position, const AttributeUse &use)
{
    const QString value = atts.value(position);
    const Range at = places.attribute(position);
    if (use.name.endsWith("address"_L1)) { // which an empty part between commas ends
        const qsizetype end = value.startsWith(u',') ? 0 : value.indexOf(",,"_L1);
        const QString lost = end < 0 ? QString() : value.sliced(end);
        if (std::ranges::any_of(lost, [](QChar c) { return c != u',' && !c.isSpace(); }))
            tell(
                "address-part",
                u"an empty part ends `%1`: %2 is not printed"_s.arg(use.name, tools::excerpt(lost)),
                at);
    } else if (use.column == Column::Sign) {
        const auto isNumber = [](const QString &text) {
            bool isOne = false;
            return std::isfinite(text.toDouble(&isOne)) && isOne;
        };
        const QString meant = QString(value).replace(u',', u'.');
        if (!isNumber(value))
            tell("variant-quantity",
                 tools::excerpt(value) + " is no number: the variant prints as taken away"_L1, at,
                 isNumber(meant) ? meant : QString());
    } else if (row->element == element::statement && use.column == Column::Description) {
        const QString meant = value.left(1).toUpper() + value.mid(1); // as the catalogue spells it
        const auto isTranslated = [](const QString &word) {
            return tr(word.toUtf8().constData()) != word;
        };
        if (meant != value && !isTranslated(value) && isTranslated(meant))
            tell("untranslated-type", tools::excerpt(value) + " is not translated"_L1, at, meant);
    }
}

// What goes wrong on the paper: the device's own lines, looked at as they were written.

void CheckingDevice::printPrinterInfo()
{
    isPrinterName = true;
    CompanyPrinterDriver::printPrinterInfo();
    isPrinterName = false;
}

void CheckingDevice::println(unsigned int indent, const QString &text)
{
    print(indent, text);
    const qsizetype size = line.size() - 1; // without the opening quote
    paper.truncate(0);
    CompanyPrinterDriver::println(0, {});
    const qsizetype pad = paper.size() - size - Frame;
    lastLine = paper.sliced(1 + pad, size);
    if (!hasControl(*lastLine) && !preview::isRule(*lastLine, settings.paperWidth))
        checkLine(*lastLine, pad);
}

void CheckingDevice::checkLine(const QString &text, qsizetype pad)
{
    const qsizetype width = settings.paperWidth;
    const qsizetype size = preview::beyondEdge(text, 0);
    if (preview::beyondEdge(text, width) > 0)
        return tellTooLong(text);
    const bool endsBehind = size > 0 && pad + size > width;
    const bool beginsAtEdge = size > 0 && justify == "center"_L1 && pad == 0 && width - size >= 2
                              && !(row && row->hasColumns());
    if (endsBehind || beginsAtEdge)
        tell("not-centred",
             u"%1 is too long to centre: %2"_s.arg(
                 tools::excerpt(text), endsBehind ? u"the line ends %1 behind the paper"_s.arg(
                                           inCharacters(pad + size - width))
                                                  : u"it begins at the edge of the paper"_s),
             placeIn(text));
}

/// The position of the longest attribute that stands in the line; -1 where none does.
int CheckingDevice::longestIn(const QString &text) const
{
    int longest = -1;
    qsizetype size = 0;
    for (int i = 0; i < atts.count(); ++i) {
        const QString value = atts.value(i);
        if (value.size() > size && text.contains(asPrinted(value))) {
            longest = i;
            size = value.size();
        }
    }
    return longest;
}

/// The place of what made most of the line.
Range CheckingDevice::placeIn(const QString &text) const
{
    return isPrinterName ? printer : places.attribute(longestIn(text));
}

/// Tells the attributes that are wider than their columns, else the longest in the line.
void CheckingDevice::tellTooLong(const QString &text)
{
    const Code code = "line-too-long";
    if (findings.isFull(code.name))
        return tell(code, {}, {});
    const QString excess = QString::number(preview::beyondEdge(text, settings.paperWidth));
    bool isTold = false;
    for (int i = 0; row && i < atts.count(); ++i) {
        const QString value = atts.value(i);
        const AttributeUse *const use = row->find(atts.qName(i));
        const int width = use ? widthOf(use->column, settings) : -1;
        if (width < 0 || value.size() <= width || !text.contains(asPrinted(value)))
            continue;
        tell(code,
             u"`%1` has %2 in a column of %3: the line is %4 longer than the paper"_s.arg(
                 use->name, inCharacters(value.size()), QString::number(width), excess),
             places.attribute(i));
        isTold = true;
    }
    if (isTold)
        return;
    const int longest = longestIn(text);
    const QString what = isPrinterName  ? u"the printer's name"_s
                         : longest >= 0 ? "the line of "_L1 + tools::excerpt(atts.qName(longest))
                                        : tools::excerpt(text);
    tell(code,
         u"%1 has %2, %3 more than the paper"_s.arg(
             what, inCharacters(preview::beyondEdge(text, 0)), excess),
         placeIn(text));
}

/// Whether the description of an item stands whole in the line that it was printed in last.
void CheckingDevice::checkDescription()
{
    if (!row || !lastLine)
        return;
    const auto uses = row->attributes;
    const auto use = std::ranges::find(uses, Column::Description, &AttributeUse::column);
    if (use == uses.end())
        return;
    QString text = atts.value(use->name);
    if (row->element == element::statement)
        text = tr(text.toUtf8().constData()); // the only description that is translated
    if (hasControl(text) || lastLine->contains(asPrinted(text)))
        return;
    qsizetype printed = qBound(qsizetype(0), qsizetype(settings.paperWidth), text.size());
    while (printed > 0 && !lastLine->contains(asPrinted(text.first(printed))))
        --printed;
    tellCut(use->name, text.sliced(printed));
}

void CheckingDevice::tellCut(QLatin1StringView attribute, const QString &lost)
{
    tell("cut-description",
         u"`%1` is cut: %2 is not printed"_s.arg(attribute, tools::excerpt(lost)),
         placeOf(attribute));
}

void CheckingDevice::printRowFiscal(const QString &department, const QString &quantity,
                                    const QString &description, const QString &price)
{
    CompanyPrinterDriver::printRowFiscal(department, quantity, description, price);
    const QString name = atts.value("name"_L1);
    if (description.size() < name.size())
        tellCut("name"_L1, name.sliced(description.size()));
    if (description.contains(u'"'))
        tell("fiscal-quote", u"a double quote in `name` ends the description early"_s,
             placeOf("name"_L1));
    const auto check = [this](Code code, QLatin1StringView attribute, const QString &value,
                              char16_t point, const QString &fault) {
        if (!preview::isFiscalNumber(value, point))
            tell(code,
                 value.isEmpty() ? u"the item has no `%1`"_s.arg(attribute)
                                 : fault.arg(tools::excerpt(value)),
                 placeOf(attribute));
    };
    const QString rule = u" is %1: a fiscal command takes digits and at most one point"_s;
    check("fiscal-number", "number"_L1, quantity, u'.', "`number`"_L1 + rule);
    check("fiscal-number", "price"_L1, price, u'.', "`price`"_L1 + rule);
    check("fiscal-department", "department"_L1, department, 0, u"the department %1 is no number"_s);
}

} // namespace requestcheck
