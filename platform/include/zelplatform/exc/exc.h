#pragma once

#include <exception>
#include <memory>
#include <string>
#include <vector>

#include <zelplatform/export.h>

/// The one way of failing: an exception with an English sentence, and the functions that put a sentence of context in
/// front of a failure on its way outwards.
namespace exc
{

/// A failure. The message may be built from a format whose "%1" to "%3" are replaced by the arguments. Copies share the
/// message, so copying never throws.
class ZELPLATFORM_API CRuntimeExc : public std::exception
{
public:
    /// Takes the message as it stands: it is not searched for placeholders, so it may hold any outside text.
    explicit CRuntimeExc(const std::string& message);

    /// Replaces the placeholders of the format, in one pass.
    CRuntimeExc(const std::string& format, const std::string& a1);
    CRuntimeExc(const std::string& format, const std::string& a1, const std::string& a2);
    CRuntimeExc(const std::string& format, const std::string& a1, const std::string& a2, const std::string& a3);

    /// Share the message.
    CRuntimeExc(const CRuntimeExc& other) noexcept;
    CRuntimeExc& operator=(const CRuntimeExc& other) noexcept;
    ~CRuntimeExc() override;

    /// The whole message: all contexts, outermost first, then the innermost sentence.
    const char* what() const noexcept override;

    /// The contexts one by one, outermost first, ending with the innermost message.
    const std::vector<std::string>& trace() const noexcept;

private:
    friend struct Regenerator;
    struct State;

    explicit CRuntimeExc(std::shared_ptr<const State> state) noexcept;

    std::shared_ptr<const State> m_state;
};

/// Throws a `CRuntimeExc` whose message is the context, one blank and the cause's message, and which keeps the cause's
/// trace. An empty context adds nothing.
[[noreturn]] ZELPLATFORM_API void RegenTraceExc(const std::string& context, const std::exception& cause);

/// The same with a context built from a format. Placeholders inside the cause's message are left alone.
[[noreturn]] ZELPLATFORM_API void RegenTraceExc(const std::string& format, const std::string& a1,
                                                const std::exception& cause);
[[noreturn]] ZELPLATFORM_API void RegenTraceExc(const std::string& format, const std::string& a1, const std::string& a2,
                                                const std::exception& cause);
[[noreturn]] ZELPLATFORM_API void RegenTraceExc(const std::string& format, const std::string& a1, const std::string& a2,
                                                const std::string& a3, const std::exception& cause);

/// Like `RegenTraceExc`, but the cause's message enters the trace as one entry.
[[noreturn]] ZELPLATFORM_API void RegenExc(const std::string& context, const std::exception& cause);
[[noreturn]] ZELPLATFORM_API void RegenExc(const std::string& format, const std::string& a1,
                                           const std::exception& cause);
[[noreturn]] ZELPLATFORM_API void RegenExc(const std::string& format, const std::string& a1, const std::string& a2,
                                           const std::exception& cause);
[[noreturn]] ZELPLATFORM_API void RegenExc(const std::string& format, const std::string& a1, const std::string& a2,
                                           const std::string& a3, const std::exception& cause);

} // namespace exc
