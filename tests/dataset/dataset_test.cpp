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
    const std::vector<std::tuple<std::string, std::string, strings>> cases = {
        {"2016a\n", "2016a.1.0", {}},
        {"\n\n  2016f extra\n", "2016f.1.0", {}},
        {"",
         ".1.0",
         {"Cannot parse version string .1.0, results.size() = 0",
          "Cannot parse version string .1.0"}},
        {"2016a.1.0",
         "2016a.1.0.1.0",
         {"Cannot parse version string 2016a.1.0.1.0, results.size() = 0",
          "Cannot parse version string 2016a.1.0.1.0"}},
    };
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
    const std::vector<std::pair<std::function<void(const std::string&)>, std::string>> cases = {
        {[](auto& dir) { write_file(dir + "/icutz44l.dat", ""); }, "44l"},
        {[](auto& dir) { write_file(dir + "/icutz123b.dat", ""); }, "123b"},
        {[](auto& dir) {
             for (const char* name : {"icutz44L.dat", "icutz44x.dat", "icutzl.dat", "icutz44le.dat",
                                      "xicutz44l.dat", "icutz44l.dat.bak"}) {
                 write_file(dir + "/" + name, "");
             }
         },
         ""},
        {[](auto& dir) { make_dir(dir + "/icutz44l.dat"); }, ""},
        {[](auto& dir) {
             write_file("/var/f", "");
             make_link("/var/f", dir + "/icutz44l.dat");
         },
         ""},
        {[](auto& dir) { write_file(dir + "/icutz44l.dat", "", 0600); }, ""},
        {[](auto& dir) { write_file(dir + "/sub/icutz44l.dat", ""); }, ""},
        {[](auto& dir) { std::filesystem::remove_all(dir); }, ""},
    };
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
        if (!file.empty()) {
            write_file(update + "/icutz/" + file, "");
        }
        devroot::stderr_capture quiet;
        return vell_icu(update);
    };
    const vell_icu l44 = icu_with("icutz44l.dat"), l44_again = icu_with("icutz44l.dat"),
                   l46 = icu_with("icutz46l.dat"), b44 = icu_with("icutz44b.dat"),
                   none = icu_with(""), none_again = icu_with("");
    EXPECT_TRUE(l44.compatible_schema(l44_again));
    EXPECT_FALSE(l44.compatible_schema(l46));
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

TEST_F(dataset, compatible_with_needs_every_pair_and_equal_lengths) {
    devroot::system_partition("2016a", "44l");
    devroot::update("2016b.1.0", "icutz44l.dat");
    devroot::update("2016e.1.0", "icutz46l.dat");
    devroot::stderr_capture quiet;
    const vell_dataset system;
    vell_dataset good(update), bad(update_dir("2016e.1.0"));
    EXPECT_TRUE(good.compatible_with(system));
    EXPECT_FALSE(bad.compatible_with(system));
    good.components.pop_back();
    EXPECT_FALSE(good.compatible_with(system));
    EXPECT_FALSE(system.compatible_with(good));
}

TEST_F(dataset, activation_repoints_both_links) {
    devroot::system_partition("2016a", "44l");
    make_link("/old", zoneinfo_link);
    make_link("/old", icutz_link);
    make_link("/old", "/var/db/icutz");
    devroot::stderr_capture quiet;
    vell_dataset(update).activate();
    EXPECT_EQ(state(zoneinfo_link), update + "/zoneinfo");
    EXPECT_EQ(state(icutz_link), update + "/icutz");
    EXPECT_EQ(state("/var/db/icutz"), missing);
    vell_dataset().activate();
    EXPECT_EQ(state(zoneinfo_link), system_zoneinfo);
    EXPECT_EQ(state(icutz_link), missing);
}

TEST_F(dataset, activation_over_directories_reports_and_throws) {
    make_dir(zoneinfo_link + "/x");
    make_dir(icutz_link + "/x");
    make_link("/old", "/var/db/icutz");
    devroot::stderr_capture capture;
    EXPECT_THROW(vell_zoneinfo(update).activate(), int);
    EXPECT_THROW(vell_icu(update).activate(), int);
    EXPECT_EQ(
        capture.messages(),
        (strings{"remove: could not remove " + zoneinfo_link, "Unlink of zoneinfo softlink failed",
                 "create_symlink: from " + zoneinfo_link + " to " + update + "/zoneinfo",
                 "No ICU schema found for " + update, "remove: could not remove " + icutz_link,
                 "unlink of ICU softlink failed",
                 "create_symlink: from " + icutz_link + " to " + update + "/icutz"}));
    EXPECT_EQ(state("/var/db/icutz"), "/old"); // the first failed removal stops the second
}

} // namespace
