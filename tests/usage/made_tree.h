#pragma once

#include "usage/command_tree.h"

namespace zelmodel_test
{

/// A small program with all that a tree can hold, and with characters that shells and roff take for more than
/// themselves.
inline usage::Command madeTree()
{
    const usage::Option help{{"-h", "--help"}, "", "Help"};
    usage::Option out{{"-o", "--out"}, "FILE", "It's a [new] file: here"};
    out.excludes = {"--dry"};
    usage::Option dry{{"--dry"}, "", "Nothing is written"};
    dry.excludes = {"--out"};
    usage::Option at{{"--at"}, "DAY HH:MM", "When"};
    at.isRequired = true;
    at.isRepeated = true;
    usage::Option level{{"--level"}, "N", "How far"};
    level.words = {"low", "high"};
    level.needs = {"--at"};

    usage::Option input{{"INPUT"}, "FILE", "What is read"};
    input.isRequired = true;
    usage::Option setting{{"KEY=VALUE"}, "KEY=VALUE", "What is set"};
    setting.isRepeated = true;
    setting.words = {"size=", "colour="};

    const usage::Command put{"put", "Put it\\there", {help, out, dry}, {input, setting}};
    const usage::Command far{"far", "Go far", {level}, {}, {}, true};
    const usage::Command go{"go", "Go somewhere", {help, at}, {}, {far}};
    return {"tool", "Does things", {help, {{"--version"}, "", "Version"}}, {}, {put, go}};
}

} // namespace zelmodel_test
