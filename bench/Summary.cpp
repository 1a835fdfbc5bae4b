#include "Summary.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <string_view>
#include <utility>

namespace
{

struct Unit
{
    double seconds;
    const char* name;
};

constexpr std::array<Unit, 4> kUnits = {{{1, "s"}, {1e-3, "ms"}, {1e-6, "us"}, {1e-9, "ns"}}};
constexpr double kNearlyOne = 0.9995; // is shown as one of this unit, not as a thousand of the next
constexpr int kNameWidth = 36;
constexpr int kTimeWidth = 32;

template <class... Numbers>
std::string Format(const char* format, Numbers... numbers)
{
    std::array<char, 100> text = {};
    std::snprintf(text.data(), text.size(), format, numbers...);
    return text.data();
}

/** Three digits that count, as far as they are not behind the second decimal. */
std::string NumberText(double value)
{
    return Format(value < 9.995 ? "%.2f" : value < 99.95 ? "%.1f" : "%.0f", value);
}

std::string SpreadText(const Spread& spread, std::string (*text)(double))
{
    return text(spread.median) + " (" + text(spread.least) + " to " + text(spread.most) + ")";
}

std::string RatioText(double ratio)
{
    return Format("%.2f", ratio);
}

std::array<std::string, 3> Cells(const CaseTimes& times)
{
    const std::string ours = SpreadText(times.Ours(), &TimeText);
    if (!times.HasStock()) {
        return {ours, "-", "-"};
    }
    return {ours, SpreadText(times.Stock(), &TimeText), SpreadText(times.Ratio(), &RatioText)};
}

std::string Padded(std::string text, size_t width)
{
    text.resize((std::max)(text.size(), width), ' ');
    return text + ' ';
}

std::string TextLine(const std::string& name, const std::string& ours, const std::string& stock,
                     const std::string& ratio)
{
    return Padded(name, kNameWidth) + Padded(ours, kTimeWidth) + Padded(stock, kTimeWidth) + ratio;
}

} // namespace

Spread SpreadOf(std::vector<double> values)
{
    if (values.empty()) {
        return {};
    }
    std::sort(values.begin(), values.end());
    const size_t middle = values.size() / 2;
    const double median = values.size() % 2 == 1 ? values[middle] : (values[middle - 1] + values[middle]) / 2;
    return {median, values.front(), values.back()};
}

CaseTimes::CaseTimes(std::string name, int parts) : m_name(std::move(name)), m_parts(parts) {}

bool CaseTimes::Add(const std::string& run, double seconds)
{
    const std::string_view all(run);
    if (all.substr(0, m_name.size()) != m_name) {
        return false;
    }
    const std::string_view side = all.substr(m_name.size());
    if (side != "/ours" && side != "/stock") {
        return false;
    }
    (side == "/ours" ? m_ours : m_stock).push_back(seconds / m_parts);
    return true;
}

Spread CaseTimes::Ratio() const
{
    std::vector<double> rounds;
    for (size_t i = 0; i < (std::min)(m_ours.size(), m_stock.size()); ++i) {
        rounds.push_back(m_ours[i] / m_stock[i]);
    }
    Spread ratio = SpreadOf(rounds);
    if (!rounds.empty()) {
        ratio.median = Ours().median / Stock().median;
    }
    return ratio;
}

std::string TimeText(double seconds)
{
    for (const Unit& unit : kUnits) {
        if (seconds >= kNearlyOne * unit.seconds) {
            return NumberText(seconds / unit.seconds) + ' ' + unit.name;
        }
    }
    return NumberText(seconds / kUnits.back().seconds) + ' ' + kUnits.back().name;
}

std::string TextHeading()
{
    return TextLine("Case", "Ours", "Stock", "Ratio");
}

std::string TextRow(const CaseTimes& times)
{
    const auto [ours, stock, ratio] = Cells(times);
    return TextLine(times.Name(), ours, stock, ratio);
}

std::string MarkdownRow(const CaseTimes& times)
{
    const auto [ours, stock, ratio] = Cells(times);
    return "| " + times.Name() + " | " + ours + " | " + stock + " | " + ratio + " |";
}
