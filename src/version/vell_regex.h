// The program's two regular expressions, and the traits they are compiled with.
#pragma once

#include <regex>

// Compiling a bracket such as [0-9] asks the traits two things about each of the 256 byte
// values: its primary collation key and whether it is in the bracket's character classes.
// std::regex_traits answers both through the locale (use_facet, a temporary vector and
// string, strxfrm): about 1.5 million of the 1.9 million instructions of a boot that compiles
// both patterns below. These traits answer the same without that machinery:
// - in the classic "C" locale, which the program never leaves, a primary key is the bytes
//   with A to Z lower-cased;
// - a bracket without named classes carries the empty mask, and no byte is in it.
// As the patterns use no equivalence classes ([[=a=]]) and no named classes ([[:digit:]],
// \d, \w), neither answer even decides a match: no key is compared with anything, and the
// empty mask is the only one asked about. The engine and its ECMAScript grammar are
// std::regex's own.
class vell_regex_traits : public std::regex_traits<char> {
  public:
    template <typename Iterator>
    string_type transform_primary(Iterator first, Iterator last) const {
        string_type key(first, last);
        for (char& byte : key) {
            if (byte >= 'A' && byte <= 'Z') {
                byte = static_cast<char>(byte - 'A' + 'a');
            }
        }
        return key;
    }

    bool isctype(char_type byte, char_class_type mask) const {
        return mask != char_class_type() && std::regex_traits<char>::isctype(byte, mask);
    }
};

using vell_regex = std::basic_regex<char, vell_regex_traits>;

namespace vell_patterns {

// A version such as 2016a.1.0: year, letters, and up to two further numbers.
inline constexpr char version[] = "([0-9]+)([a-z]+)(?:\\.([0-9]+))?(?:\\.([0-9]+))?";
// An update's ICU data file, such as icutz44l.dat; the group is its format.
inline constexpr char icu_data_file[] = "icutz([0-9]+[lbe])\\.dat";

} // namespace vell_patterns
