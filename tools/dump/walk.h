#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <zelplatform/io/binary_stream.h>

#include "bytes_device.h"
#include "row.h"

namespace dump
{

/// Where a field stands in a binary form.
struct Span
{
    const Row* row = nullptr;
    std::size_t offset = 0;      ///< of the first byte, which may begin a length
    std::size_t content = 0;     ///< of the value's first byte
    std::size_t end = 0;         ///< behind the last byte that is there
    std::uint64_t announced = 0; ///< bytes that the value takes
    std::vector<Span> children;
    bool isList = false;

    bool isValue() const noexcept { return row != nullptr && row->tell != nullptr; }

    /// Whether there are fewer bytes than the value takes.
    bool isCut() const noexcept { return announced > end - content; }
    std::string_view contentIn(std::string_view bytes) const { return bytes.substr(content, end - content); }

    /// What the row says against the whole value; empty when that is nothing.
    std::string refusalIn(std::string_view bytes) const;
};

/// Names the bytes of a form in the order in which the library reads them, by the same primitives; no value is copied.
/// It judges nothing: whether the form is right, and how far it can be read, says the library's own reader.
///
/// A walk that comes to the end of the bytes stops there: what is asked for after that gives 0 and names nothing.
class Walk
{
public:
    explicit Walk(std::string_view bytes) : m_bytes(bytes), m_device(bytes) {}

    bool goesOn() const noexcept { return !m_isOver; }

    /// A number of fixed width.
    template <class T>
    T number(const Row& row)
    {
        return add(row, m_device.position(), sizeof(T)) ? take<T>() : T();
    }

    /// Bytes with their number in front.
    template <class TLength>
    void counted(const Row& row)
    {
        const auto offset = m_device.position();
        if (rest().size() < sizeof(TLength))
        {
            add(row, offset, sizeof(TLength));
            return;
        }
        const auto length = take<TLength>();
        if (add(row, offset, length))
            m_device.skip(length);
    }

    /// So many bytes without a number in front.
    void bytes(const Row& row, std::size_t size);

    /// Fields that belong together.
    template <class TBody>
    void group(const Row& row, const TBody& body)
    {
        nest(row, false, body);
    }

    /// So many items, each named by a call.
    template <class TItem>
    void list(const Row& row, std::uint64_t count, const TItem& item)
    {
        nest(row, true, [&] {
            for (std::uint64_t i = 0; i < count && goesOn(); ++i)
                item();
        });
    }

    /// What no field holds yet.
    std::string_view rest() const { return m_bytes.substr(m_device.position()); }

    /// Whether every byte has a field, and nothing speaks against the form.
    bool isWhole() const { return !m_isOver && rest().empty() && !m_doubt; }

    /// The bytes that the form explains well: all of a form that was cut off, but none from the first field on that
    /// announces more than it can have or holds what the library refuses.
    std::size_t explained() const { return m_doubt.value_or(m_isOver ? m_bytes.size() : m_device.position()); }

    /// The fields, in the order of the bytes.
    Span& root() noexcept { return m_root; }

private:
    /// Names a value whose content begins here; whether it is there as a whole.
    bool add(const Row& row, std::size_t offset, std::uint64_t announced);
    void checkContent(const Span& span);

    template <class T>
    T take()
    {
        io::binary_stream_tt stream(m_device);
        T value{};
        stream >> value;
        return value;
    }

    Span& parent() noexcept { return m_parent == nullptr ? m_root : *m_parent; }

    template <class TBody>
    void nest(const Row& row, bool isList, const TBody& body)
    {
        if (m_isOver)
            return;
        Span span;
        span.row = &row;
        span.isList = isList;
        span.offset = span.content = m_device.position();
        auto* const outer = std::exchange(m_parent, &span);
        body();
        m_parent = outer;
        span.end = m_isOver ? m_bytes.size() : m_device.position();
        parent().children.push_back(std::move(span));
    }

    std::string_view m_bytes;
    BytesDevice m_device;
    Span m_root;
    Span* m_parent = nullptr; ///< the group that is being named; nullptr: the root
    std::optional<std::size_t> m_doubt;
    bool m_isOver = false;
};

} // namespace dump
