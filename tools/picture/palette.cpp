#include "palette.h"

#include <algorithm>

namespace picture
{
namespace
{

using when::EDayMark;
using when::EHour;

constexpr Tint Black{"#ffffff", "#000000", "#000000"};
constexpr Tint Muted{"#ffffff", "#5a6475", "#5a6475"};
constexpr Tint MutedOnDark{"#14181f", "#a3adbd", "#a3adbd"};
constexpr std::array<Tint, Schemes.size()> WithoutStart{Muted, MutedOnDark, Black};

template <class TStyles, class TKind>
const char* nameIn(const TStyles& styles, TKind kind)
{
    return std::find_if(styles.begin(), styles.end(), [kind](const auto& style) { return style.kind == kind; })->name;
}

} // namespace

const std::array<Paper, Schemes.size()> Papers{{{"#ffffff", "#1b2230", "#5a6475", "#d5dae3"},
                                                {"#14181f", "#e8ebf1", "#a3adbd", "#39424f"},
                                                {"#ffffff", "#000000", "#000000", "#808080"}}};

const std::array<DayStyle, 8> DayStyles{
    {{EDayMark::Start, "start", {Tint{"#e1ecfb", "#2a62b8", "#12356d"}, Tint{"#1c3152", "#7fb0f5", "#dbe9ff"}, Black}},
     {EDayMark::ActiveFull,
      "active",
      {Tint{"#0f5c43", "#0f5c43", "#ffffff"}, Tint{"#66d6aa", "#66d6aa", "#06281c"}, Black}},
     {EDayMark::SyntheticFull,
      "synthetic",
      {Tint{"#f0e8fb", "#6b3fb0", "#43217f"}, Tint{"#35265a", "#b99af0", "#ebe1fe"}, Black}},
     {EDayMark::BothFulls,
      "both",
      {Tint{"#54217d", "#54217d", "#ffffff"}, Tint{"#d8b4fa", "#d8b4fa", "#2a0f45"}, Black}},
     {EDayMark::ClosedWindow,
      "shut",
      {Tint{"#ffffff", "#b3261e", "#8f1d17"}, Tint{"#14181f", "#ff9b91", "#ffb4ab"}, Black}},
     {EDayMark::ActiveFullWithoutStart, "idle-active", WithoutStart},
     {EDayMark::SyntheticFullWithoutStart, "idle-synthetic", WithoutStart},
     {EDayMark::BothFullsWithoutStart, "idle-both", WithoutStart}}};

const std::array<HourStyle, 4> HourStyles{
    {{EHour::Open, "open", {Tint{"#d3ebe2", "#2f7d66", "#0b4733"}, Tint{"#1d4437", "#5cc79d", "#c9f3e2"}, Black}},
     {EHour::Closed, "closed", {Tint{"#f3f5f8", "#5a6475", "#5a6475"}, Tint{"#1c222c", "#a3adbd", "#a3adbd"}, Black}},
     {EHour::OpenStart,
      "open-start",
      {Tint{"#d3ebe2", "#2f7d66", "#0b4733"}, Tint{"#1d4437", "#5cc79d", "#c9f3e2"}, Black}},
     {EHour::ClosedStart,
      "closed-start",
      {Tint{"#f3f5f8", "#b3261e", "#8f1d17"}, Tint{"#1c222c", "#ff9b91", "#ffb4ab"}, Black}}}};

const char* nameOf(EDayMark mark)
{
    return nameIn(DayStyles, mark);
}

const char* nameOf(EHour mark)
{
    return nameIn(HourStyles, mark);
}

} // namespace picture
