#pragma once

#include <type_traits>

#include "operation.h"

namespace zelmodel_test
{

/// Assignments of a class: a copy is assigned whole or not at all.
template <class T>
Operations assigning(const std::string& name, const Make<T>& make, const Make<T>& makeOther, const Tell<T>& tell)
{
    const auto copied = [makeOther](T& target) {
        const T other = makeOther();
        target = other;
    };
    const auto itself = [](T& target) {
        const auto& same = target;
        target = same;
    };
    const auto copy = [tell](const T& target) { return tell(T(target)); };
    return changing<T>(name, make, tell, {{"assignedCopy", copied}, {"assignedItself", itself}}) +
           asking<T>(name, make, {{"copy", copy}});
}

/// Assignments of a plain record: field by field, as the language assigns; whoever needs all or nothing assigns a copy
/// made before, which cannot fail.
template <class T>
Operations assigningFields(const std::string& name, const Make<T>& make, const Make<T>& makeOther, const Tell<T>& tell)
{
    static_assert(std::is_nothrow_move_assignable_v<T>, "a copy made before is assigned without a failure");
    const auto copied = [makeOther](T& target) {
        const T other = makeOther();
        target = other;
    };
    const auto whole = [makeOther](T& target) {
        const T other = makeOther();
        target = T(other);
    };
    const auto copy = [tell](const T& target) { return tell(T(target)); };
    return changing<T>(name, make, tell, {{"assignedCopy", copied}}, EGuarantee::Valid) +
           changing<T>(name, make, tell, {{"assignedWhole", whole}}) + asking<T>(name, make, {{"copy", copy}});
}

} // namespace zelmodel_test
