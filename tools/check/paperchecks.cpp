// SPDX-License-Identifier: MIT
#include "tools/check/checkingdevice.h"

#include "render/vocabulary.h"
#include "text/localeencoding.h"
#include "tools/terminal.h"

#include <QTextCodec>

#include <algorithm>

namespace requestcheck {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype Frame = 4; // of a printed line: its quote, and the mark and line end behind it

/// A text as the device prints it.
QString asPrinted(QStringView text)
{
    return text.toString().replace("TOTALE"_L1, "SOMMA"_L1);
}

bool hasControl(QStringView text)
{
    return std::ranges::any_of(text, [](QChar c) { return c.unicode() < 0x20; });
}

/// Without the blanks at its end, which nobody sees.
qsizetype visibleSize(QStringView text)
{
    while (text.endsWith(u' '))
        text.chop(1);
    return text.size();
}

/// How much of the beginning of `text`, `most` characters at most, stands in the line.
qsizetype printedPart(QStringView text, qsizetype most, const QString &line)
{
    qsizetype size = qBound(qsizetype(0), most, text.size());
    while (size > 0 && !line.contains(asPrinted(text.first(size))))
        --size;
    return size;
}

QString inCharacters(qsizetype count)
{
    return QString::number(count) + (count == 1 ? " character"_L1 : " characters"_L1);
}

bool isNumber(QStringView text, int mostPoints)
{
    const auto digits = std::ranges::count_if(text, [](QChar c) { return c >= u'0' && c <= u'9'; });
    return digits > 0 && text.count(u'.') <= mostPoints && digits + text.count(u'.') == text.size();
}

bool isLineEnd(QChar c)
{
    return c == u'\n' || c == u'\r';
}

bool isControl(QChar c)
{
    return c.unicode() < 0x20 || (c.unicode() >= 0x7F && c.unicode() < 0xA0);
}

bool isAscii(QStringView text)
{
    return std::ranges::all_of(text, [](QChar c) { return c.unicode() < 0x80; });
}

/// The first character of the text that the codec writes as `?`; empty without one.
QString firstUnknown(QStringView text, QTextCodec *codec)
{
    for (qsizetype i = 0; i < text.size(); ++i) {
        const bool isPair = text[i].isHighSurrogate() && i + 1 < text.size();
        const QStringView character = text.sliced(i, isPair ? 2 : 1);
        i += isPair ? 1 : 0;
        if (!isAscii(character) && text::encoded(character, codec) == "?")
            return character.toString();
    }
    return {};
}

} // namespace

// What the value of an attribute does to the line that it is printed in.

void CheckingDevice::checkValue(int position)
{
    const QString value = current.atts.value(position);
    const QString name = tools::excerpt(current.atts.qName(position));
    const tools::Place at = places.attribute(position);
    checkCharacters(value, name, at);
    checkEncoding(value, name, at);
    const AttributeUse *const use = current.row->find(current.atts.qName(position));
    if (use && use->name.endsWith("address"_L1))
        checkAddress(value, name, at);
}

void CheckingDevice::checkCharacters(const QString &value, const QString &name, tools::Place at)
{
    if (std::ranges::any_of(value, isLineEnd)) {
        tell("line-feed",
             "a line end in "_L1 + name + ": the printer takes what follows for a command"_L1, at);
    } else {
        const auto *const control = std::ranges::find_if(value, isControl);
        if (control != value.end())
            tell("control-character",
                 "the control character "_L1 + tools::excerpt(QString(*control)) + " in "_L1 + name,
                 at);
    }
    const bool isFramed = !current.row->find(u"department"); // unlike a fiscal command
    if (isFramed && value.contains("\"@"_L1))
        tell("end-mark", "`\"@` in "_L1 + name + " ends the printed line early"_L1, at);
}

void CheckingDevice::checkEncoding(const QString &value, const QString &name, tools::Place at)
{
    if (isAscii(value))
        return;
    if (value.contains(QChar::ReplacementCharacter)) {
        tell("undecodable", name + " has bytes that are not in the encoding of the request"_L1, at);
        return;
    }
    QTextCodec *const codec = text::localeCodec();
    if (!codec) // UTF-8, which has them all
        return;
    const QString unknown = firstUnknown(value, codec);
    if (!unknown.isEmpty())
        tell("not-in-encoding",
             tools::excerpt(unknown) + " in "_L1 + name + " prints as `?`: it is not in "_L1
                 + QString::fromLatin1(codec->name()),
             at);
}

/// An empty part between commas ends an address.
void CheckingDevice::checkAddress(const QString &value, const QString &name, tools::Place at)
{
    const qsizetype end = value.startsWith(u',') ? 0 : value.indexOf(",,"_L1);
    const QString lost = end < 0 ? QString() : value.sliced(end);
    if (std::ranges::any_of(lost, [](QChar c) { return c != u',' && !c.isSpace(); }))
        tell("address-part",
             "an empty part ends "_L1 + name + ": "_L1 + tools::excerpt(lost)
                 + " is not printed"_L1,
             at);
}

// What goes wrong on the paper: the device's own lines, looked at as they were written.

void CheckingDevice::printSeparatorLine()
{
    isRule = true; // on narrow paper a centred rule is shifted, which no request can help
    CompanyPrinterDriver::printSeparatorLine();
    isRule = false;
}

void CheckingDevice::println(unsigned int indent, const QString &text)
{
    print(indent, text);
    const qsizetype size = line.size() - 1; // without the opening quote
    paper.truncate(0);
    CompanyPrinterDriver::println(0, {});
    const qsizetype pad = paper.size() - size - Frame;
    lastLine = paper.sliced(1 + pad, size);
    hasPrinted = true;
    if (!isRule && !hasControl(lastLine))
        checkLine(lastLine, pad);
}

void CheckingDevice::checkLine(const QString &text, qsizetype pad)
{
    const qsizetype width = settings.paperWidth;
    const qsizetype size = visibleSize(text);
    if (size == 0)
        return;
    if (size > width) {
        tellTooLong(text, size - width);
        return;
    }
    const auto tellNotCentred = [&](const QString &trouble) {
        tell("not-centred", tools::excerpt(text) + " is too long to centre: "_L1 + trouble,
             places.tag());
    };
    const bool isCentred = justify == "center"_L1;
    const bool hasRoom = width - size >= 2;
    const bool hasColumns = current.row && current.row->hasColumns();
    if (pad + size > width)
        tellNotCentred("the line ends "_L1 + inCharacters(pad + size - width)
                       + " behind the paper"_L1);
    else if (isCentred && pad == 0 && hasRoom && !hasColumns)
        tellNotCentred(u"it begins at the edge of the paper"_s);
}

/// Tells the attributes that are wider than their columns, else the longest in the line.
void CheckingDevice::tellTooLong(const QString &text, qsizetype excess)
{
    Code code = "line-too-long";
    int longest = -1;
    bool isTold = false;
    const auto sizeAt = [this](int i) { return current.atts.value(i).size(); };
    for (int i = 0; i < current.atts.count() && !findings.isFull(code.name); ++i) {
        const AttributeUse *const use =
            current.row ? current.row->find(current.atts.qName(i)) : nullptr;
        const int width = use ? widthOf(use->column, settings) : -1;
        if (sizeAt(i) == 0 || !text.contains(asPrinted(current.atts.value(i))))
            continue;
        if (width >= 0 && sizeAt(i) > width) {
            tell(code,
                 u'`' + use->name + "` has "_L1 + inCharacters(sizeAt(i)) + " in a column of "_L1
                     + QString::number(width) + ": the line is "_L1 + QString::number(excess)
                     + " longer than the paper"_L1,
                 places.attribute(i));
            isTold = true;
        }
        if (longest < 0 || sizeAt(i) > sizeAt(longest))
            longest = i;
    }
    if (isTold)
        return;
    const QString what = longest < 0
                             ? tools::excerpt(text)
                             : "the line of "_L1 + tools::excerpt(current.atts.qName(longest));
    tell(code,
         what + " has "_L1 + inCharacters(visibleSize(text)) + ", "_L1 + QString::number(excess)
             + " more than the paper"_L1,
         places.attribute(longest));
}

/// Whether the description of an item stands whole in the line that it was printed in last.
void CheckingDevice::checkDescription()
{
    if (!current.row || !hasPrinted)
        return;
    const auto uses = current.row->attributes;
    const auto use = std::ranges::find(uses, Column::Description, &AttributeUse::column);
    if (use == uses.end())
        return;
    QString text = valueOf(current.atts, use->name);
    if (current.row->element == u"statement")
        text = tr(text.toUtf8().constData()); // the only description that is translated
    if (!hasControl(text) && !lastLine.contains(asPrinted(text)))
        tellCut(use->name, text.sliced(printedPart(text, settings.paperWidth, lastLine)));
}

void CheckingDevice::tellCut(QLatin1StringView attribute, const QString &lost)
{
    tell("cut-description",
         u'`' + attribute + "` is cut: "_L1 + tools::excerpt(lost) + " is not printed"_L1,
         placeOf(attribute));
}

void CheckingDevice::printRowFiscal(const QString &department, const QString &quantity,
                                    const QString &description, const QString &price)
{
    CompanyPrinterDriver::printRowFiscal(department, quantity, description, price);
    const QString name = valueOf(current.atts, "name"_L1);
    if (description.size() < name.size())
        tellCut("name"_L1, name.sliced(description.size()));
    if (description.contains(u'"'))
        tell("fiscal-quote", u"a double quote in `name` ends the description early"_s,
             placeOf("name"_L1));
    checkFiscalNumber("number"_L1, quantity);
    checkFiscalNumber("price"_L1, price);
    if (!isNumber(department, 0))
        tell("fiscal-department",
             department.isEmpty()
                 ? u"the item has no `department`"_s
                 : "the department "_L1 + tools::excerpt(department) + " is no number"_L1,
             placeOf("department"_L1));
}

void CheckingDevice::checkFiscalNumber(QLatin1StringView attribute, const QString &value)
{
    if (!isNumber(value, 1))
        tell("fiscal-number",
             value.isEmpty() ? "the item has no `"_L1 + attribute + u'`'
                             : u'`' + attribute + "` is "_L1 + tools::excerpt(value)
                                   + ": a fiscal command takes digits and at most one point"_L1,
             placeOf(attribute));
}

} // namespace requestcheck
