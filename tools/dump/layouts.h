#pragma once

#include "tellers.h"
#include "walk.h"

/// One layout for each binary form: the names of its fields in the order in which the library's reader takes them.
namespace dump
{

void walkKeyBundle(Walk& walk);
void walkPasswordDerivedKey(Walk& walk);
void walkKeySet(Walk& walk);
void walkManagingServer(Walk& walk);
void walkScheduleOptions(Walk& walk);
void walkJobStart(Walk& walk);
void walkCloudClient(Walk& walk);
void walkGuid(Walk& walk);
void walkText(Walk& walk);

/// Words for what cannot be the text of a GUID; empty for what can.
std::string whyNoGuid(std::string_view content);

/// A GUID as text with its length in front, under the name of the row.
constexpr Row guidRow(const char* name, const char* label)
{
    return {name, label, tellText, EShown::Known, whyNoGuid, LongestGuid};
}

} // namespace dump
