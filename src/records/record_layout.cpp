#include "records/record_layout.h"

#include <algorithm>
#include <bit>
#include <concepts>

#include "runtime/checked.h"

namespace velor {

namespace {

// The file is little-endian whatever the machine.
template <std::unsigned_integral Bits>
Bits loadBits(const char* bytes) {
    Bits bits = 0;
    for (std::size_t i = 0; i < sizeof(Bits); ++i)
        bits = static_cast<Bits>(bits |
                                 static_cast<Bits>(static_cast<Bits>(static_cast<unsigned char>(bytes[i])) << (8 * i)));
    return bits;
}

template <std::unsigned_integral Bits>
void storeBits(char* bytes, Bits bits) {
    for (std::size_t i = 0; i < sizeof(Bits); ++i)
        bytes[i] = static_cast<char>(static_cast<unsigned char>(bits >> (8 * i)));
}

void load(const char* bytes, std::int16_t& value) {
    value = std::bit_cast<std::int16_t>(loadBits<std::uint16_t>(bytes));
}
void load(const char* bytes, std::int32_t& value) {
    value = std::bit_cast<std::int32_t>(loadBits<std::uint32_t>(bytes));
}
void load(const char* bytes, float& value) { value = std::bit_cast<float>(loadBits<std::uint32_t>(bytes)); }
template <std::size_t Width>
void load(const char* bytes, std::array<char, Width>& text) {
    std::copy_n(bytes, Width, text.begin());
}

void store(char* bytes, std::int16_t value) { storeBits(bytes, std::bit_cast<std::uint16_t>(value)); }
void store(char* bytes, std::int32_t value) { storeBits(bytes, std::bit_cast<std::uint32_t>(value)); }
void store(char* bytes, const float& value) { storeBits(bytes, std::bit_cast<std::uint32_t>(value)); }
template <std::size_t Width>
void store(char* bytes, const std::array<char, Width>& text) {
    std::copy(text.begin(), text.end(), bytes);
}

}  // namespace

TLatka decodeRecord(std::span<const char, kRecordSize> bytes) {
    TLatka record;
    for (const RecordField& field : kRecordFields)
        std::visit([&](auto member) { load(bytes.data() + field.offset, record.*member); }, field.member);
    const char* block = bytes.data() + kBlocksOffset;
    for (TKorelace& correlation : record.Korelace) {
        for (std::size_t j = 0; j < kCoefficients; ++j) load(block + sizeof(float) * j, correlation.A[j]);
        for (const BlockField& field : kBlockFields) load(block + field.offset, correlation.*field.member);
        block += kBlockSize;
    }
    return record;
}

std::array<char, kRecordSize> encodeRecord(const TLatka& record) {
    std::array<char, kRecordSize> bytes{};
    for (const RecordField& field : kRecordFields)
        std::visit([&](auto member) { store(bytes.data() + field.offset, record.*member); }, field.member);
    char* block = bytes.data() + kBlocksOffset;
    for (const TKorelace& correlation : record.Korelace) {
        for (std::size_t j = 0; j < kCoefficients; ++j) store(block + sizeof(float) * j, correlation.A[j]);
        for (const BlockField& field : kBlockFields) store(block + field.offset, correlation.*field.member);
        block += kBlockSize;
    }
    return bytes;
}

float TLatka::*constantMember(int position) {
    if (position < 1 || position > TLatka::kConstants) checked::raise(RunTimeError::kSubscript);
    return std::get<float TLatka::*>(kRecordFields[kFirstConstant + static_cast<std::size_t>(position) - 1].member);
}

}  // namespace velor
