#pragma once

#include <string>

#include "markup.h"
#include "when/day_mark.h"
#include "when/week_plan.h"

/// The signs of an SVG picture. What differs in colour differs in shape, too.
namespace picture
{

/// A place in units of the picture.
struct Point
{
    int x;
    int y;
};

/// A box from its upper left corner on.
struct Box
{
    Point at;
    int width;
    int height;
};

/// A day's number around a centre.
void drawDay(Markup& markup, Point centre, const std::string& number);

/// The same with its mark. The title is told when the mark is pointed at; it may be empty.
void drawDay(Markup& markup, Point centre, const std::string& number, const when::DayMark& mark,
             const std::string& title);

/// The pattern of open hours, once in a picture.
void definePattern(Markup& markup);

/// An hour of a window; the title likewise.
void drawHour(Markup& markup, const Box& box, const when::HourMark& mark, const std::string& title);

} // namespace picture
