#pragma once

#include <exception>
#include <string>
#include <utility>

#include <gtest/gtest.h>

namespace zelmodel_test
{

/// The whole text of the failure that the action ends with; a test failure of its own when there is none.
template <class F>
std::string failureText(F&& action)
{
    try
    {
        std::forward<F>(action)();
    }
    catch (const std::exception& failure)
    {
        return failure.what();
    }
    ADD_FAILURE() << "nothing was thrown";
    return {};
}

} // namespace zelmodel_test
