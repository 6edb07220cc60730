#include <zelplatform/exc/exc.h>

#include <utility>

#include <zelplatform/util/text.h>

namespace exc
{

struct CRuntimeExc::State
{
    std::string message;
    std::vector<std::string> trace;
};

CRuntimeExc::CRuntimeExc(const std::string& message) : m_state(std::make_shared<const State>(State{message, {message}}))
{
}

CRuntimeExc::CRuntimeExc(const std::string& format, const std::string& a1) : CRuntimeExc(util::str_format(format, a1))
{
}

CRuntimeExc::CRuntimeExc(const std::string& format, const std::string& a1, const std::string& a2)
    : CRuntimeExc(util::str_format(format, a1, a2))
{
}

CRuntimeExc::CRuntimeExc(const std::string& format, const std::string& a1, const std::string& a2, const std::string& a3)
    : CRuntimeExc(util::str_format(format, a1, a2, a3))
{
}

CRuntimeExc::CRuntimeExc(std::shared_ptr<const State> state) noexcept : m_state(std::move(state)) {}

CRuntimeExc::CRuntimeExc(const CRuntimeExc& other) noexcept = default;

CRuntimeExc& CRuntimeExc::operator=(const CRuntimeExc& other) noexcept = default;

CRuntimeExc::~CRuntimeExc() = default;

const char* CRuntimeExc::what() const noexcept
{
    return m_state->message.c_str();
}

const std::vector<std::string>& CRuntimeExc::trace() const noexcept
{
    return m_state->trace;
}

struct Regenerator
{
    static std::vector<std::string> traceOf(const std::exception& cause)
    {
        if (const auto* traced = dynamic_cast<const CRuntimeExc*>(&cause))
            return traced->trace();
        return {cause.what()};
    }

    [[noreturn]] static void raise(std::string context, const std::exception& cause, std::vector<std::string> trace)
    {
        CRuntimeExc::State state{cause.what(), std::move(trace)};
        if (!context.empty())
        {
            state.message = context + " " + state.message;
            state.trace.insert(state.trace.begin(), std::move(context));
        }
        throw CRuntimeExc(std::make_shared<const CRuntimeExc::State>(std::move(state)));
    }
};

void RegenTraceExc(const std::string& context, const std::exception& cause)
{
    Regenerator::raise(context, cause, Regenerator::traceOf(cause));
}

void RegenTraceExc(const std::string& format, const std::string& a1, const std::exception& cause)
{
    RegenTraceExc(util::str_format(format, a1), cause);
}

void RegenTraceExc(const std::string& format, const std::string& a1, const std::string& a2, const std::exception& cause)
{
    RegenTraceExc(util::str_format(format, a1, a2), cause);
}

void RegenTraceExc(const std::string& format, const std::string& a1, const std::string& a2, const std::string& a3,
                   const std::exception& cause)
{
    RegenTraceExc(util::str_format(format, a1, a2, a3), cause);
}

void RegenExc(const std::string& context, const std::exception& cause)
{
    Regenerator::raise(context, cause, {cause.what()});
}

void RegenExc(const std::string& format, const std::string& a1, const std::exception& cause)
{
    RegenExc(util::str_format(format, a1), cause);
}

void RegenExc(const std::string& format, const std::string& a1, const std::string& a2, const std::exception& cause)
{
    RegenExc(util::str_format(format, a1, a2), cause);
}

void RegenExc(const std::string& format, const std::string& a1, const std::string& a2, const std::string& a3,
              const std::exception& cause)
{
    RegenExc(util::str_format(format, a1, a2, a3), cause);
}

} // namespace exc
