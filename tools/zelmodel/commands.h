#pragma once

#include "dispatcher.h"

/// Each defines one command: its options and its work. The work gives the exit code; what it reads is told in the
/// session, so that whoever catches a refusal can say in which file and on which line.

void addCalendar(Dispatcher& commands);
void addCheck(Dispatcher& commands);
void addCompletion(Dispatcher& commands);
void addConvert(Dispatcher& commands);
void addDiff(Dispatcher& commands);
void addDump(Dispatcher& commands);
void addExplain(Dispatcher& commands);
void addLog(Dispatcher& commands);
void addMan(Dispatcher& commands);
void addNew(Dispatcher& commands);
void addNext(Dispatcher& commands);
void addSchema(Dispatcher& commands);
void addSet(Dispatcher& commands);
void addShow(Dispatcher& commands);
void addWhy(Dispatcher& commands);
