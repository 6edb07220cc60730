#pragma once

#include <algorithm>
#include <cstring>
#include <string>
#include <vector>

#include <zelplatform/io/device.h>

namespace zelmodel_test
{

/// A device over a text that counts its calls, can be short and can hide how much is left.
struct TestDevice : io::io_dev_redirector_t
{
    std::string bytes;
    std::size_t position = 0;
    bool isSizeKnown = false;
    long answer = 0;
    bool isAnswerForced = false;
    std::vector<unsigned long> calls;

    TestDevice() = default;
    explicit TestDevice(std::string content, bool tellsSize = false) : bytes(std::move(content)), isSizeKnown(tellsSize)
    {
    }

    /// Every later call reports this count and moves nothing.
    void answerWith(long count)
    {
        answer = count;
        isAnswerForced = true;
    }

    long write(const void* data, unsigned long size) override
    {
        calls.push_back(size);
        if (isAnswerForced)
            return answer;
        bytes.append(static_cast<const char*>(data), size);
        return static_cast<long>(size);
    }

    long read(void* data, unsigned long size) override
    {
        calls.push_back(size);
        if (isAnswerForced)
            return answer;
        const std::size_t count = std::min(size, bytes.size() - position);
        std::memcpy(data, bytes.data() + position, count);
        position += count;
        return static_cast<long>(count);
    }

    long remaining() const override
    {
        return isSizeKnown ? static_cast<long>(bytes.size() - position) : io_dev_redirector_t::remaining();
    }
};

} // namespace zelmodel_test
