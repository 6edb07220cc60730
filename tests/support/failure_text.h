#pragma once

#include <exception>
#include <string>

#include <gtest/gtest.h>

#include <zelplatform/exc/exc.h>

namespace support
{

/// The whole chain of the exc::CRuntimeExc that the call throws. Anything else that happens fails the test.
template <class TCall>
std::string failureText(TCall&& call)
{
    try
    {
        call();
    }
    catch (const exc::CRuntimeExc& failure)
    {
        return failure.what();
    }
    catch (const std::exception& failure)
    {
        ADD_FAILURE() << "another exception: " << failure.what();
        return std::string();
    }
    ADD_FAILURE() << "nothing was thrown";
    return std::string();
}

} // namespace support
