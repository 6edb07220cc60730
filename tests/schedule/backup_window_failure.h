#pragma once

#include <exception>
#include <memory>
#include <string>

#include <gtest/gtest.h>

#include <zelplatform/exc/exc.h>

namespace zelmodel_test
{

/// The text of the failure that the action throws as a pointer; the pointer is deleted. A test failure when a handler
/// of std::exception& sees anything, or when nothing is thrown.
template <class F>
std::string pointerFailureText(F&& action)
{
    try
    {
        try
        {
            action();
        }
        catch (std::exception& caught)
        {
            ADD_FAILURE() << "caught by reference: " << caught.what();
            return {};
        }
    }
    catch (exc::CRuntimeExc* thrown)
    {
        const std::unique_ptr<exc::CRuntimeExc> owner(thrown);
        return owner->what();
    }
    ADD_FAILURE() << "nothing was thrown";
    return {};
}

} // namespace zelmodel_test
