// SPDX-License-Identifier: MIT
#include "tools/preview/fiscalline.h"

#include <algorithm>
#include <array>

namespace preview {

namespace {

/// `"name"quantity*priceHdepartmentR`, and after it an adjustment, as `-1,50*5M` or `2*1M`.
struct FiscalItem
{
    CellsView name, quantity, price, department, adjustment;
};

/// A discount or payment: what stands before and after its value, and its title on the receipt.
struct FiscalValue
{
    CellsView before, after, title, unit;
    LineKind kind;
};

constexpr std::array<FiscalValue, 5> values = {{
    {U"=", U"*2M", U"Discount", U"%", LineKind::FiscalDiscount},
    {U"", U"H1T", U"Cash", U"", LineKind::FiscalPayment},
    {U"", U"H3T", U"Credit card", U"", LineKind::FiscalPayment},
    {U"", U"H2T", U"Cheque", U"", LineKind::FiscalPayment},
    {U"", U"H5T", U"Ticket", U"", LineKind::FiscalPayment},
}};

/// Cuts `text` at the first `mark`: answers what stands before it and leaves what follows.
std::optional<CellsView> upTo(char32_t mark, CellsView &text)
{
    const size_t at = text.find(mark);
    if (at == CellsView::npos)
        return std::nullopt;
    const CellsView before = text.substr(0, at);
    text.remove_prefix(at + 1);
    return before;
}

/// The name may hold quotes of its own: it ends at the last one.
std::optional<FiscalItem> fiscalItem(CellsView line)
{
    const size_t quote = line.rfind(U'"');
    if (!line.starts_with(U'"') || quote == 0)
        return std::nullopt;
    CellsView rest = line.substr(quote + 1);
    const auto quantity = upTo(U'*', rest);
    const auto price = quantity ? upTo(U'H', rest) : std::nullopt;
    const auto department = price ? upTo(U'R', rest) : std::nullopt;
    if (!department || !(rest.empty() || rest.ends_with(U"*1M") || rest.ends_with(U"*5M")))
        return std::nullopt;
    return FiscalItem{line.substr(1, quote - 1), *quantity, *price, *department,
                      rest.substr(0, rest.size() - std::min<size_t>(rest.size(), 3))};
}

const FiscalValue *fiscalValue(CellsView line)
{
    const auto *const found = std::ranges::find_if(values, [line](const FiscalValue &value) {
        return line.size() > value.before.size() + value.after.size()
               && line.starts_with(value.before) && line.ends_with(value.after)
               && line.find_first_not_of(U"0123456789,.+-eE", value.before.size())
                      == line.size() - value.after.size();
    });
    return found == values.end() ? nullptr : found;
}

/// One text at the left and one at the right, on two lines where they do not fit on one.
void addRow(std::vector<Cells> &lines, CellsView left, CellsView right, int width)
{
    const size_t room = size_t(std::max(width, 0));
    const bool fits = left.size() + 1 + right.size() <= room;
    if (!fits)
        lines.emplace_back(left);
    Cells line(fits ? left : CellsView());
    const size_t blanks = room - std::min(room, line.size() + right.size());
    lines.push_back(line.append(blanks, U' ').append(right));
}

} // namespace

std::optional<LineKind> fiscalKind(CellsView line)
{
    if (fiscalItem(line))
        return LineKind::FiscalItem;
    if (const FiscalValue *const value = fiscalValue(line))
        return value->kind;
    return std::nullopt;
}

std::vector<Cells> receiptLines(CellsView command, int width)
{
    std::vector<Cells> lines;
    if (const auto item = fiscalItem(command)) {
        Cells amounts(item->quantity);
        amounts.append(U" x ").append(item->price).append(U" dep. ").append(item->department);
        addRow(lines, item->name, amounts, width);
        if (!item->adjustment.empty())
            addRow(lines, U"  Adjustment", item->adjustment, width);
    } else if (const FiscalValue *const value = fiscalValue(command)) {
        command.remove_prefix(value->before.size());
        command.remove_suffix(value->after.size());
        addRow(lines, value->title, Cells(command).append(value->unit), width);
    }
    return lines;
}

} // namespace preview
