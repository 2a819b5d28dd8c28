// Where each field of a substance record lies: the one description that reading, writing and the text compiler share.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>
#include <variant>

#include "velor/record.h"

namespace velor {

inline constexpr std::size_t kRecordSize = 508;
inline constexpr std::size_t kBlockSize = 32;
inline constexpr std::size_t kBlocksOffset = 156;

// The member that a field is copied to tells its kind: a 16- or 32-bit integer, a single or a text.
using RecordMember = std::variant<std::int16_t TLatka::*, std::int32_t TLatka::*, float TLatka::*,
                                  std::array<char, 30> TLatka::*, std::array<char, 20> TLatka::*>;

struct RecordField {
    std::string_view name;
    std::size_t offset;
    std::size_t size;
    RecordMember member;
};

inline constexpr std::array<RecordField, 23> kRecordFields{{
    {"Cislo", 0, 2, &TLatka::Cislo},
    {"Nazev", 2, 30, &TLatka::Nazev},
    {"Vzorec", 32, 20, &TLatka::Vzorec},
    {"Synonym", 52, 30, &TLatka::Synonym},
    {"Rezerva2", 82, 2, &TLatka::Rezerva2},
    {"CAS", 84, 4, &TLatka::CAS},
    {"Mv", 88, 4, &TLatka::Mv},
    {"Tkr", 92, 4, &TLatka::Tkr},
    {"Pkr", 96, 4, &TLatka::Pkr},
    {"Vkr", 100, 4, &TLatka::Vkr},
    {"Acent", 104, 4, &TLatka::Acent},
    {"Gyr", 108, 4, &TLatka::Gyr},
    {"Nlomu", 112, 4, &TLatka::Nlomu},
    {"TNlomu", 116, 4, &TLatka::TNlomu},
    {"Dipol", 120, 4, &TLatka::Dipol},
    {"TDipol", 124, 4, &TLatka::TDipol},
    {"Permit", 128, 4, &TLatka::Permit},
    {"TPermit", 132, 4, &TLatka::TPermit},
    {"Htani", 136, 4, &TLatka::Htani},
    {"Ttani", 140, 4, &TLatka::Ttani},
    {"Tnbv", 144, 4, &TLatka::Tnbv},
    {"Rezerva57", 148, 4, &TLatka::Rezerva57},
    {"Rezerva58", 152, 4, &TLatka::Rezerva58},
}};

inline constexpr std::size_t kFirstConstant = 6;  // index of Mv; the 17 constants stand one after another

struct BlockField {
    std::string_view name;
    std::size_t offset;  // in the block
    std::int16_t TKorelace::*member;
};

inline constexpr std::size_t kCoefficients = 6;  // singles A1..A6 at the start of the block
inline constexpr std::array<BlockField, 4> kBlockFields{{
    {"Typ", 24, &TKorelace::Typ},
    {"Priznak", 26, &TKorelace::Priznak},
    {"Tmin", 28, &TKorelace::Tmin},
    {"Tmax", 30, &TKorelace::Tmax},
}};

static_assert(kRecordFields.back().offset + kRecordFields.back().size == kBlocksOffset);
static_assert(kBlocksOffset + TLatka::kCorrelations * kBlockSize == kRecordSize);
static_assert(kBlockFields.back().offset + sizeof(std::int16_t) == kBlockSize);
static_assert(kRecordFields[kFirstConstant].name == "Mv" &&
              kRecordFields.size() - kFirstConstant == static_cast<std::size_t>(TLatka::kConstants));

// Decoding and encoding are each other's inverse on every 508 bytes.
TLatka decodeRecord(std::span<const char, kRecordSize> bytes);
std::array<char, kRecordSize> encodeRecord(const TLatka& record);

// Constant 1..17 of a record, in the record's order from Mv on.
float TLatka::*constantMember(int position);

}  // namespace velor
