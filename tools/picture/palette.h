#pragma once

#include <array>
#include <cstddef>

#include "when/day_mark.h"
#include "when/week_plan.h"

namespace picture
{

/// Where a picture is looked at.
enum class EScheme
{
    Light,
    Dark,
    Print ///< black on white: what differs there differs by its lines
};

constexpr std::array<EScheme, 3> Schemes{EScheme::Light, EScheme::Dark, EScheme::Print};

/// Colours of the page, "#rrggbb".
struct Paper
{
    const char* page;
    const char* ink;
    const char* muted; ///< words of less weight, readable all the same
    const char* rule;  ///< lines that only adorn
};

/// Colours of a mark.
struct Tint
{
    const char* fill;
    const char* line;
    const char* text; ///< on the fill
};

/// A mark in the style sheets: its class and its colours by scheme.
template <class TKind>
struct Style
{
    TKind kind;
    const char* name;
    std::array<Tint, Schemes.size()> tints;
};

using DayStyle = Style<when::EDayMark>;
using HourStyle = Style<when::EHour>;

extern const std::array<Paper, Schemes.size()> Papers;
extern const std::array<DayStyle, 8> DayStyles;
extern const std::array<HourStyle, 4> HourStyles;

/// The class of a mark.
const char* nameOf(when::EDayMark mark);
const char* nameOf(when::EHour mark);

} // namespace picture
