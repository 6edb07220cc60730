#pragma once

#include <optional>
#include <string>
#include <vector>

#include "dispatcher.h"
#include "edit/new_options.h"

/// An option that was given.
struct GivenOption
{
    const edit::NewOption* option;
    std::string text;
};

/// The document that is asked for.
struct NewRequest
{
    describe::EDocumentKind kind = describe::EDocumentKind::AgentJobOptions;
    std::string name; ///< what is written, for messages
    std::vector<GivenOption> given;
    std::optional<std::string> window;
    std::string output;       ///< empty: standard output
    std::string windowOutput; ///< empty: beside the output
};

/// The option of windows that a request's window is given to.
const edit::NewOption& windowOption();

/// Writes the document, and its window when one is asked for, as the request says; gives the exit code.
int writeNew(const NewRequest& request, Session& session);
