// The version of a time-zone data set, such as 2016a.1.0: year, letters and up to
// two further numbers, ordered field by field.
#pragma once

#include <cstdint>
#include <string>

class vell_version {
  public:
    // The unset value, which orders below every parsed version.
    vell_version() = default;
    explicit vell_version(const std::string& text);

    // Replaces all four fields from text. Malformed text warns twice and leaves the
    // unset value; a number too large for 32 bits throws std::out_of_range.
    void parse(const std::string& text);

    bool operator>(const vell_version& other) const;
    bool operator==(const vell_version& other) const = default;

    std::int32_t year = -1;
    std::string letters;
    std::int32_t major = -1; // -1 when absent
    std::int32_t minor = -1; // -1 when absent
};
