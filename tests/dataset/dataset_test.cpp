#include "dataset/vell_dataset.h"
#include "dataset/vell_icu.h"
#include "dataset/vell_zoneinfo.h"
#include "support/boots.h"

#include <stdexcept>

namespace {

using namespace boots;
using devroot::make_dir;
using devroot::make_link;
using devroot::write_file;
using strings = std::vector<std::string>;

const std::string update = update_dir("2016b.1.0");

class dataset : public devroot::device_test {};

TEST_F(dataset, system_version_is_the_version_word_plus_1_0) {
    const auto unparsed = [](const std::string& text) {
        return strings{"Cannot parse version string " + text + ", results.size() = 0",
                       "Cannot parse version string " + text};
    };
    // clang-format off
    const std::vector<std::tuple<std::string, std::string, strings>> cases = {
        {"2016a\n", "2016a.1.0", {}},
        {"\n\n  2016f extra\n", "2016f.1.0", {}},
        {"", ".1.0", unparsed(".1.0")},
        {"2016a.1.0", "2016a.1.0.1.0", unparsed("2016a.1.0.1.0")},
    };
    // clang-format on
    for (const auto& [content, text, messages] : cases) {
        devroot::clear();
        devroot::system_partition("", "44l");
        if (!content.empty()) {
            write_file(system_zoneinfo + "/+VERSION", content);
        }
        devroot::stderr_capture capture;
        const vell_dataset system;
        EXPECT_EQ(capture.messages(), messages) << text;
        EXPECT_EQ(system.get_version_string(), text);
        devroot::stderr_capture quiet;
        EXPECT_EQ(system.version, vell_version(text)); // parsed from the text it shows
        ASSERT_EQ(system.components.size(), 2U);
        EXPECT_EQ(dynamic_cast<vell_zoneinfo&>(*system.components[0]).get_path(), system_zoneinfo);
        EXPECT_EQ(dynamic_cast<vell_icu&>(*system.components[1]).get_schema(), "44l");
    }
}

TEST_F(dataset, update_paths_are_taken_only_under_the_tz_directory) {
    const std::vector<std::pair<std::string, std::string>> accepted = {
        {update, "2016b.1.0"}, {update + "/", "2016b.1.0/"}, {timezone_dir + "tz/x", "x"}};
    for (const auto& [path, text] : accepted) {
        devroot::stderr_capture quiet;
        const vell_dataset set(path);
        EXPECT_EQ(set.get_version_string(), text);
        EXPECT_EQ(dynamic_cast<vell_zoneinfo&>(*set.components[0]).get_path(), path + "/zoneinfo");
        EXPECT_EQ(dynamic_cast<vell_icu&>(*set.components[1]).get_path(), path + "/icutz");
    }
    for (const std::string& path :
         {timezone_dir + "tz/", timezone_dir + "tz", timezone_dir + "tzx/2016b", system_zoneinfo,
          std::string("/var/db/timezone/TZ/2016b")}) {
        devroot::stderr_capture capture;
        try {
            vell_dataset set(path);
            ADD_FAILURE() << path << " accepted";
        } catch (const std::invalid_argument& error) {
            EXPECT_STREQ(error.what(), "badpath");
        }
        EXPECT_EQ(capture.messages(), strings{"vell_dataset::create_components: bad path " + path});
    }
}

TEST_F(dataset, compares_versions_by_order_and_paths_by_equality) {
    devroot::system_partition("2016a", "44l");
    devroot::stderr_capture quiet;
    const vell_dataset system, system_again, same_version(update_dir("2016a.1.0")), newer(update),
        newer_slash(update + "/"), unparsed(update_dir("x"));
    EXPECT_TRUE(system == system_again);
    EXPECT_FALSE(newer == newer_slash);
    EXPECT_FALSE(same_version == system);
    EXPECT_FALSE(same_version > system);
    EXPECT_FALSE(system > same_version);
    EXPECT_TRUE(newer > system);
    EXPECT_TRUE(system > unparsed);
    EXPECT_FALSE(unparsed > unparsed);
}

TEST_F(dataset, icu_schema_comes_from_a_whole_matching_readable_file_name) {
    const auto files = [](std::vector<std::string> names, mode_t mode = 0644) {
        return [=](const std::string& dir) {
            for (const auto& name : names) {
                write_file(dir + "/" + name, "", mode);
            }
        };
    };
    // clang-format off
    const std::vector<std::pair<std::function<void(const std::string&)>, std::string>> cases = {
        {files({"icutz44l.dat"}), "44l"},
        {files({"icutz123b.dat"}), "123b"},
        {files({"icutz44L.dat", "icutz44x.dat", "icutzl.dat", "icutz44le.dat", "xicutz44l.dat",
                "icutz44l.dat.bak"}), ""},
        {files({"icutz44l.dat"}, 0600), ""},
        {files({"sub/icutz44l.dat"}), ""},
        {[](auto& dir) { make_dir(dir + "/icutz44l.dat"); }, ""},
        {[](auto& dir) { write_file("/var/f", ""); make_link("/var/f", dir + "/icutz44l.dat"); }, ""},
        {[](auto& dir) { std::filesystem::remove_all(dir); }, ""},
    };
    // clang-format on
    for (const auto& [arrange, schema] : cases) {
        devroot::clear();
        make_dir(update + "/icutz");
        arrange(update + "/icutz");
        devroot::stderr_capture capture;
        const vell_icu icu(update);
        EXPECT_EQ(icu.get_schema(), schema);
        EXPECT_EQ(capture.messages(),
                  schema.empty() ? strings{"No ICU schema found for " + update} : strings{});
    }
}

TEST_F(dataset, icu_schemas_must_be_equal_texts) {
    const auto icu_with = [](const std::string& file) {
        devroot::clear();
        write_file(update + "/icutz/" + file, "");
        devroot::stderr_capture quiet;
        return vell_icu(update);
    };
    const vell_icu l44 = icu_with("icutz44l.dat"), b44 = icu_with("icutz44b.dat"),
                   none = icu_with("none"), none_again = icu_with("none");
    EXPECT_TRUE(l44.compatible_schema(icu_with("icutz44l.dat")));
    EXPECT_FALSE(l44.compatible_schema(b44));
    EXPECT_FALSE(l44.compatible_schema(none));
    EXPECT_TRUE(none.compatible_schema(none_again));
    const vell_zoneinfo zoneinfo;
    EXPECT_TRUE(zoneinfo.compatible_schema(l44));
    devroot::stderr_capture capture;
    EXPECT_FALSE(l44.compatible_schema(zoneinfo));
    EXPECT_EQ(capture.messages(),
              strings{"vell_icu::compatible_schema: could not dynamic_cast other component"});
}

TEST_F(dataset, lists_of_unequal_length_are_never_compatible) {
    devroot::system_partition("2016a", "44l");
    devroot::update("2016b.1.0", "icutz44l.dat");
    devroot::stderr_capture quiet;
    const vell_dataset system;
    vell_dataset shorter(update);
    EXPECT_TRUE(shorter.compatible_with(system));
    shorter.components.pop_back();
    EXPECT_FALSE(shorter.compatible_with(system));
    EXPECT_FALSE(system.compatible_with(shorter));
}

} // namespace
