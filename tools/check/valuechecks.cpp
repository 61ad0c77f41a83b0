// SPDX-License-Identifier: MIT
#include "tools/check/checkingdevice.h"

#include "text/localeencoding.h"
#include "tools/terminal.h"

#include <QTextCodec>

#include <algorithm>

// What the value of an attribute does to the line that it is printed in.

namespace requestcheck {

using namespace Qt::StringLiterals;

namespace {

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
        tell(codes::lineFeed,
             "a line end in "_L1 + name + ": the printer takes what follows for a command"_L1, at);
    } else {
        const auto *const control = std::ranges::find_if(value, isControl);
        if (control != value.end())
            tell(codes::controlCharacter,
                 "the control character "_L1 + tools::excerpt(QString(*control)) + " in "_L1 + name,
                 at);
    }
    const bool isFramed = !current.row->find(u"department"); // unlike a fiscal command
    if (isFramed && value.contains("\"@"_L1))
        tell(codes::endMark, "`\"@` in "_L1 + name + " ends the printed line early"_L1, at);
}

void CheckingDevice::checkEncoding(const QString &value, const QString &name, tools::Place at)
{
    if (isAscii(value))
        return;
    if (value.contains(QChar::ReplacementCharacter)) {
        tell(codes::undecodable, name + " has bytes that are not in the encoding of the request"_L1,
             at);
        return;
    }
    QTextCodec *const codec = text::localeCodec();
    if (!codec) // UTF-8, which has them all
        return;
    const QString unknown = firstUnknown(value, codec);
    if (!unknown.isEmpty())
        tell(codes::notInEncoding,
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
        tell(codes::addressPart,
             "an empty part ends "_L1 + name + ": "_L1 + tools::excerpt(lost)
                 + " is not printed"_L1,
             at);
}

} // namespace requestcheck
