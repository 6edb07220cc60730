#pragma once

#include <optional>
#include <string>
#include <vector>

#include "describe/node.h"
#include "when/day_plan.h"
#include "when/week_plan.h"

namespace picture
{

/// A field of a document in words: "Active full", "First Friday of every month".
struct Fact
{
    std::string label;
    std::string words;
};

/// A backup window.
struct WindowPart
{
    std::string name;        ///< of its file, for people
    std::string words;       ///< what it is, in one sentence
    std::vector<Fact> facts; ///< its days, and what else it holds
    when::PlannedWeek week;
};

/// What is drawn, whatever the form of the picture: a schedule with or without a window, or a window alone. All texts
/// may hold anything.
struct SchedulePicture
{
    std::string name;                       ///< of the document's file, for people
    std::string span;                       ///< what the months are together: "2026", "January 2026"
    std::string words;                      ///< the schedule in one sentence
    std::vector<Fact> facts;                ///< its parts
    std::vector<when::PlannedMonth> months; ///< a month, or the twelve of a year; none for a window alone
    std::optional<WindowPart> window;
};

/// The parts of the schedule in the tree of a document that has one.
std::vector<Fact> scheduleFacts(const describe::Node& document);

/// The window with the tree of its document.
WindowPart makeWindowPart(std::string name, const describe::Node& document, when::PlannedWeek week);

} // namespace picture
