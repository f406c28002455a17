#pragma once

#include "platform/Text.h"

#include <bit>
#include <cstdint>
#include <cstring>
#include <optional>
#include <span>
#include <string_view>
#include <type_traits>
#include <vector>

// Records on disk are packed little-endian fields. A record type describes its layout once:
//
//     struct AirlineRecord {
//         FixedText<3> Code;
//         ...
//         static constexpr void fields(auto& r, auto&& f) { f("Code", r.Code); ... }
//     };
//
// and the size, the reader, the writer and the text driver's view of the record all follow from that one
// list.

namespace gatewise {

using Bytes = std::vector<std::uint8_t>;
using ByteView = std::span<const std::uint8_t>;

inline ByteView viewOf(std::string_view text) {
    return {reinterpret_cast<const std::uint8_t*>(text.data()), text.size()};
}

/// The bytes as a text; it lives as long as they do.
inline std::string_view asText(ByteView bytes) {
    return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

namespace detail {

template<class T> constexpr std::size_t fieldSize = sizeof(T);
template<std::size_t N> constexpr std::size_t fieldSize<FixedText<N>> = N;

template<class T> void loadField(T& field, const std::uint8_t* bytes) {
    using Raw = std::conditional_t<
        sizeof(T) == 8, std::uint64_t,
        std::conditional_t<sizeof(T) == 4, std::uint32_t,
                           std::conditional_t<sizeof(T) == 2, std::uint16_t, std::uint8_t>>>;
    std::uint64_t raw = 0;
    for (std::size_t i = 0; i < sizeof(T); ++i) raw |= static_cast<std::uint64_t>(bytes[i]) << (8 * i);
    field = std::bit_cast<T>(static_cast<Raw>(raw));
}
template<std::size_t N> void loadField(FixedText<N>& field, const std::uint8_t* bytes) {
    std::memcpy(field.data(), bytes, N);
}

template<class T> void storeField(const T& field, std::uint8_t* bytes) {
    std::uint64_t raw = 0;
    if constexpr (sizeof(T) == 8)
        raw = std::bit_cast<std::uint64_t>(field);
    else if constexpr (sizeof(T) == 4)
        raw = std::bit_cast<std::uint32_t>(field);
    else if constexpr (sizeof(T) == 2)
        raw = std::bit_cast<std::uint16_t>(field);
    else
        raw = std::bit_cast<std::uint8_t>(field);
    for (std::size_t i = 0; i < sizeof(T); ++i) bytes[i] = static_cast<std::uint8_t>(raw >> (8 * i));
}
template<std::size_t N> void storeField(const FixedText<N>& field, std::uint8_t* bytes) {
    std::memcpy(bytes, field.data(), N);
}

} // namespace detail

/// Bytes of a record on disk.
template<class Record> constexpr std::size_t recordSize() {
    std::size_t sum = 0;
    Record record{};
    Record::fields(record, [&](const char*, auto& field) {
        sum += detail::fieldSize<std::remove_cvref_t<decltype(field)>>;
    });
    return sum;
}

/// Reads a record from `bytes`, which must hold at least recordSize bytes.
template<class Record> void loadRecord(Record& record, const std::uint8_t* bytes) {
    Record::fields(record, [&](const char*, auto& field) {
        detail::loadField(field, bytes);
        bytes += detail::fieldSize<std::remove_cvref_t<decltype(field)>>;
    });
}

/// The record at `offset` (from 0), or nothing when it does not lie wholly inside.
template<class Record> std::optional<Record> recordAt(ByteView bytes, std::size_t offset) {
    if (offset > bytes.size() || bytes.size() - offset < recordSize<Record>()) return std::nullopt;
    Record record{};
    loadRecord(record, bytes.data() + offset);
    return record;
}

/// One number at `offset` (from 0), or nothing when it does not lie wholly inside.
template<class T> std::optional<T> numberAt(ByteView bytes, std::size_t offset) {
    if (offset > bytes.size() || bytes.size() - offset < sizeof(T)) return std::nullopt;
    T value{};
    detail::loadField(value, bytes.data() + offset);
    return value;
}

template<class T> void appendField(Bytes& out, const T& field) {
    const std::size_t at = out.size();
    out.resize(at + detail::fieldSize<T>);
    detail::storeField(field, out.data() + at);
}

template<class Record> void appendRecord(Bytes& out, const Record& record) {
    Record::fields(record, [&](const char*, const auto& field) { appendField(out, field); });
}

inline void appendText(Bytes& out, std::string_view text) {
    out.insert(out.end(), text.begin(), text.end());
}

} // namespace gatewise
