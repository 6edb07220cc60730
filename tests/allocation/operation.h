#pragma once

#include <functional>
#include <memory>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

namespace zelmodel_test
{

/// What a failure may do to the target of an operation.
enum class EGuarantee
{
    AsBefore, ///< the target is as it was
    Valid     ///< the target may have changed in part; the operation can be repeated
};

/// A target and an operation on it.
class Subject
{
public:
    virtual ~Subject() = default;
    virtual void run() = 0;

    /// The target, and what the operation answered, in words.
    virtual std::string told() const = 0;
};

/// One operation of the library, with a way to make a fresh target of it.
struct Operation
{
    std::string name; ///< "CWeekMask.SetDay"
    std::function<std::unique_ptr<Subject>()> make;
    EGuarantee guarantee = EGuarantee::AsBefore;
};

using Operations = std::vector<Operation>;

template <class T>
using Make = std::function<T()>;

template <class T>
using Tell = std::function<std::string(const T&)>;

/// A call that changes its target.
template <class T>
struct Change
{
    const char* name;
    std::function<void(T&)> call;
};

/// A call that answers and leaves its target alone.
template <class T>
struct Question
{
    const char* name;
    std::function<std::string(const T&)> call;
};

namespace detail
{

template <class T>
class ChangedSubject : public Subject
{
public:
    ChangedSubject(const Make<T>& make, const std::function<void(T&)>& call, const Tell<T>& tell)
        : m_target(make()), m_call(call), m_tell(tell)
    {
    }

    void run() override { m_call(m_target); }
    std::string told() const override { return m_tell(m_target); }

private:
    T m_target;
    const std::function<void(T&)>& m_call;
    const Tell<T>& m_tell;
};

template <class T>
class AskedSubject : public Subject
{
public:
    AskedSubject(const Make<T>& make, const std::function<std::string(const T&)>& call) : m_target(make()), m_call(call)
    {
    }

    void run() override { m_answer = m_call(m_target); }
    std::string told() const override { return m_answer; }

private:
    const T m_target;
    const std::function<std::string(const T&)>& m_call;
    std::string m_answer;
};

} // namespace detail

/// The changes as operations on targets of one make.
template <class T>
Operations changing(const std::string& target, const Make<T>& make, const Tell<T>& tell,
                    const std::vector<Change<T>>& changes, EGuarantee guarantee = EGuarantee::AsBefore)
{
    Operations operations;
    for (const auto& change : changes)
        operations.push_back(
            {target + "." + change.name,
             [make, tell, call = change.call] { return std::make_unique<detail::ChangedSubject<T>>(make, call, tell); },
             guarantee});
    return operations;
}

/// The questions as operations on targets of one make.
template <class T>
Operations asking(const std::string& target, const Make<T>& make, const std::vector<Question<T>>& questions)
{
    Operations operations;
    for (const auto& question : questions)
        operations.push_back({target + "." + question.name, [make, call = question.call] {
                                  return std::make_unique<detail::AskedSubject<T>>(make, call);
                              }});
    return operations;
}

/// Nothing but the arguments of a call that has no target.
struct Nothing
{
};

/// Questions that need no target.
inline Operations asking(const std::string& family, const std::vector<Question<Nothing>>& questions)
{
    return asking<Nothing>(
        family, [] { return Nothing(); }, questions);
}

inline Operations operator+(Operations a, const Operations& b)
{
    a.insert(a.end(), b.begin(), b.end());
    return a;
}

// The families.
Operations xmlNodeOperations();
Operations xmlWriterOperations();
Operations calendarOperations();
Operations maskOperations();
Operations scheduleOperations();
Operations windowOperations();
Operations jobOperations();
Operations gfsOperations();
Operations recordOperations();
Operations storageOperations();
Operations sessionOperations();
Operations transformOperations();
Operations keyOperations();
Operations enumerationOperations();
Operations timeOperations();
Operations textOperations();
Operations deviceOperations();
Operations logOperations();

/// Every operation, in the order of the families.
const Operations& everyOperation();

} // namespace zelmodel_test
