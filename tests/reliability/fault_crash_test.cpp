// A boot must end with links that name usable data whatever fails, and a power loss at
// any moment must heal at the next boot. Each scenario is booted under strace, limited
// to the program's own paths: once clean to list its calls, then with an error injected
// at each call, and killed on entry to each call that changes the disk (and the healing
// boot killed in turn). A clean boot afterwards must leave what two fault-free boots
// leave, or the outcome of one of the documented windows below.
#include "support/boots.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <unistd.h>

namespace {

using namespace boots;
using devroot::make_link;
using devroot::run_result;

const std::string legacy_icutz = "/var/db/icutz";
const std::string legacy_icu = "/var/db/icu";
const std::string rewritten_utc = zoneinfo_link + "/UTC";
const std::string d_record = "2016c.1.0_2016d.1.0";

// System data 2016c with ICU format 44l, the given updates (format 44l), links to in_use
// (empty: the system partition), and a localtime link through the zoneinfo link.
void device(const std::vector<std::string>& updates, const std::string& in_use) {
    devroot::system_partition("2016c", "44l");
    for (const auto& version : updates) {
        devroot::update(version, "icutz44l.dat");
    }
    make_link(in_use.empty() ? system_zoneinfo : update_dir(in_use) + "/zoneinfo", zoneinfo_link);
    if (!in_use.empty()) {
        make_link(update_dir(in_use) + "/icutz", icutz_link);
    }
    make_link(rewritten_utc, localtime_link);
}

struct scenario {
    std::string name;
    std::vector<std::string> updates; // update folders it reads, traced by exact path
    std::function<void()> arrange;
};

const std::vector<scenario> scenarios = {
    {"first_boot", {}, [] { devroot::system_partition("2016c", "44l"); }},
    {"update_installed",
     {"2016d.1.0"},
     [] {
         device({"2016d.1.0"}, "");
         make_link(update_dir("2016d.1.0"), tz_latest);
     }},
    {"update_in_use",
     {"2016d.1.0"},
     [] {
         device({"2016d.1.0"}, "2016d.1.0");
         make_link(update_dir("2016d.1.0"), tz_latest);
         devroot::write_file(record, d_record);
     }},
    {"current_incompatible",
     {"2016a.1.0"},
     [] {
         device({"2016a.1.0"}, "2016a.1.0");
         make_link(update_dir("2016a.1.0"), tz_latest);
     }},
    {"tz_latest_plain_file",
     {},
     [] {
         device({}, "");
         devroot::write_file(tz_latest, "2016d.1.0");
     }},
    {"localtime_rewritten",
     {},
     [] {
         device({}, "");
         relink(localtime_link, "/usr/share/zoneinfo/UTC");
     }},
    {"legacy_icutz_migrated",
     {"2016d.1.0"},
     [] {
         device({"2016d.1.0"}, "2016d.1.0");
         std::filesystem::remove(icutz_link);
         make_link(update_dir("2016d.1.0") + "/icutz", legacy_icutz);
         make_link(update_dir("2016d.1.0"), tz_latest);
         devroot::write_file(record, d_record);
     }},
};

// One traced system call: its name, its ordinal among calls of that name, its line.
struct call {
    std::string name;
    int ordinal = 0;
    std::string line;
};
using trace = std::vector<call>;

bool changes_disk(const call& c) {
    static const std::vector<std::string> changing = {
        "unlink", "unlinkat", "symlink",  "symlinkat", "rmdir",
        "write",  "rename",   "renameat", "renameat2", "link",
        "linkat", "mkdir",    "mkdirat",  "truncate",  "ftruncate"};
    const bool opening = c.name == "open" || c.name == "openat" || c.name == "creat";
    return std::ranges::find(changing, c.name) != changing.end() ||
           (opening && (c.line.find("O_CREAT") != std::string::npos ||
                        c.line.find("O_TRUNC") != std::string::npos));
}

// The path a disk-changing call changes: a link's own path, a descriptor's file (-y),
// or the first path argument.
std::string changed_path(const call& c) {
    const auto quoted = [&](std::size_t end) {
        const std::size_t close = c.line.rfind('"', end);
        return c.line.substr(c.line.rfind('"', close - 1) + 1,
                             close - c.line.rfind('"', close - 1) - 1);
    };
    if (c.name.starts_with("symlink")) {
        return quoted(c.line.rfind(')'));
    }
    if (c.name == "write" || c.name == "ftruncate") {
        const std::size_t open = c.line.find('<');
        return c.line.substr(open + 1, c.line.find('>') - open - 1);
    }
    return quoted(c.line.find('"', c.line.find('"') + 1));
}

bool names(const call& c, const std::string& path) {
    return c.line.find('"' + path + '"') != std::string::npos ||
           c.line.find('<' + path + '>') != std::string::npos;
}

class tracer {
  public:
    tracer() {
        char name[] = "/tmp/tzlinks-trace-XXXXXX";
        const int fd = mkstemp(name);
        if (fd >= 0) {
            close(fd);
            file_ = name;
        }
    }
    ~tracer() { std::remove(file_.c_str()); }
    tracer(const tracer&) = delete;
    tracer& operator=(const tracer&) = delete;

    // A boot traced on the program's own paths (with the options given, such as a fault).
    run_result run(const scenario& s, const std::vector<std::string>& options = {}) {
        std::vector<std::string> argv = base();
        for (const char* path : {"/var/db/timezone/", "/var/db/timezone/tz/"}) {
            argv.insert(argv.end(), {"-P", path});
        }
        for (const auto& path :
             {tz_latest, zoneinfo_link, icutz_link, localtime_link, marker, record, legacy_icutz,
              legacy_icu, rewritten_utc, system_zoneinfo + "/+VERSION",
              std::string("/usr/share/icu/icutzformat.txt")}) {
            argv.insert(argv.end(), {"-P", path});
        }
        for (const auto& version : s.updates) {
            for (const auto& path : {update_dir(version), update_dir(version) + "/icutz",
                                     update_dir(version) + "/zoneinfo/+VERSION"}) {
                argv.insert(argv.end(), {"-P", path});
            }
        }
        argv.insert(argv.end(), options.begin(), options.end());
        return devroot::run_tzlinks(argv);
    }
    // A boot traced on every path, to see where it writes.
    run_result run_everywhere() {
        std::vector<std::string> argv = base();
        argv.insert(argv.end(), {"-e", "trace=%file,write,ftruncate"});
        return devroot::run_tzlinks(argv);
    }
    trace calls() const {
        trace result;
        std::map<std::string, int> seen;
        std::ifstream in(file_);
        for (std::string line; std::getline(in, line);) {
            const std::size_t paren = line.find('(');
            if (paren != std::string::npos && !line.starts_with("+++") &&
                !line.starts_with("---")) {
                const std::string name = line.substr(0, paren);
                result.push_back({name, ++seen[name], line});
            }
        }
        return result;
    }

  private:
    // LeakSanitizer cannot work under a tracer; the suite's own runs still check leaks.
    std::vector<std::string> base() const {
        return {"strace",
                "-qq",
                "-y",
                "-o",
                file_,
                "-E",
                "ASAN_OPTIONS=detect_leaks=0:abort_on_error=1"};
    }
    std::string file_;
};

using snapshot = std::map<std::string, std::string>;
snapshot take() {
    snapshot s;
    for (const auto& path :
         {zoneinfo_link, icutz_link, localtime_link, marker, record, legacy_icutz, legacy_icu}) {
        s[path] = state(path);
    }
    return s;
}

std::string show(const snapshot& s) {
    std::string text;
    for (const auto& [path, value] : s) {
        text += "\n  " + path + " -> " + value;
    }
    return text;
}

std::string inject(const call& c, const std::string& what) {
    return "inject=" + c.name + ":" + what + ":when=" + std::to_string(c.ordinal);
}

// Under sanitizers a boot costs several times as much: only EIO (the program tells
// ENOENT from every other error, never one error from another), and no second crash.
bool quick() {
    return std::getenv("TZLINKS_RELIABILITY_QUICK") != nullptr;
}

const std::vector<std::string> escapes = {"protect_directories failed", "migrate_icutz_link failed",
                                          "reset_to_system_partition failed",
                                          "correct_localtime_link failed"};

// Never a signal; status 1 exactly when a failure escaped a contained step.
void expect_status(const run_result& r, const std::string& what) {
    const bool escaped = std::ranges::any_of(r.messages, [](const std::string& m) {
        return std::ranges::find(escapes, m) != escapes.end();
    });
    EXPECT_EQ(r.status, escaped ? 1 : 0) << what << "\n" << r.output;
}

// Every disk-changing call of the last traced boot names a path the program owns.
void expect_owned_writes(const trace& calls, const std::string& what) {
    static const std::vector<std::string> owned = {
        zoneinfo_link, icutz_link, localtime_link, marker, record, legacy_icutz, legacy_icu};
    for (const call& c : calls) {
        const std::string path = changes_disk(c) ? changed_path(c) : "";
        if (!path.empty() && !path.starts_with("pipe:") && !path.starts_with("/dev/")) {
            EXPECT_NE(std::ranges::find(owned, path), owned.end()) << what << ": " << c.line;
        }
    }
}

// A fault or crash at this call, in this traced boot.
struct at_call {
    const trace* calls;
    std::size_t index;
};

bool after_update_switch(const at_call& at) {
    for (std::size_t i = 0; i < at.index && i < at.calls->size(); ++i) {
        const call& c = (*at.calls)[i];
        if (c.name == "symlink" && names(c, zoneinfo_link) &&
            c.line.find("\"" + update_dir("")) != std::string::npos) {
            return true;
        }
    }
    return false;
}

// What the design cannot heal: the path may be left with another value when the fault
// or crash hit one of the window's calls. The README lists the same windows.
struct window {
    std::string path;
    std::function<bool(const at_call&)> opened_by;
    std::function<bool(const std::string& value, const snapshot& before)> leaves;
};

const std::vector<window> windows = {
    // localtime is re-read, removed and re-made; any failure there means the default zone.
    {localtime_link,
     [](const at_call& at) {
         const call& c = (*at.calls)[at.index];
         return names(c, localtime_link) || names(c, rewritten_utc);
     },
     [](const std::string& value, const snapshot&) { return value == default_localtime; }},
    // The decision reads only the zoneinfo link, so an icutz link left missing or stale
    // by a failed removal, migration or re-creation stays so.
    {icutz_link,
     [](const at_call& at) {
         const call& c = (*at.calls)[at.index];
         return names(c, icutz_link) || names(c, legacy_icutz);
     },
     [](const std::string& value, const snapshot& before) {
         return value == missing || value == before.at(icutz_link) ||
                value == before.at(legacy_icutz);
     }},
    // The record is written once, after the switch; a later boot sees no activation.
    {record,
     [](const at_call& at) {
         return names((*at.calls)[at.index], record) || after_update_switch(at);
     },
     [](const std::string& value, const snapshot&) { return value == missing || value == "="; }},
};

// Each path must be as one of the two fault-free boots left it (the marker says only
// what the last boot did), or as an opened window allows.
int expect_healed(const std::vector<snapshot>& references, const snapshot& before,
                  const snapshot& after, const std::vector<at_call>& points,
                  const std::string& what) {
    int windows_used = 0;
    for (const auto& [path, value] : after) {
        if (value == references[0].at(path) || value == references[1].at(path)) {
            continue;
        }
        const bool documented = std::ranges::any_of(windows, [&](const window& w) {
            return w.path == path && w.leaves(value, before) &&
                   std::ranges::any_of(points, [&](const at_call& at) {
                       return at.index < at.calls->size() && w.opened_by(at);
                   });
        });
        windows_used += documented ? 1 : 0;
        EXPECT_TRUE(documented) << what << ": " << path << " is " << value << ", not "
                                << references[1].at(path) << "; before the boot:" << show(before);
    }
    return windows_used;
}

class reliability : public devroot::device_test, public ::testing::WithParamInterface<scenario> {
  protected:
    void SetUp() override {
        devroot::device_test::SetUp();
        if (IsSkipped()) {
            return;
        }
        if (std::system("strace -V >/dev/null 2>&1") != 0) {
            GTEST_SKIP() << "strace is not installed (apt-get install strace)";
        }
        GetParam().arrange();
        const run_result first = tracer_.run(GetParam());
        calls_ = tracer_.calls();
        if (first.status != 0 || calls_.empty()) {
            GTEST_SKIP() << "strace cannot trace the program here: " << first.output;
        }
        // The two fault-free boots again, traced everywhere to see what they change.
        arrange();
        for (int boot = 0; boot < 2; ++boot) {
            ASSERT_EQ(tracer_.run_everywhere().status, 0);
            expect_owned_writes(tracer_.calls(), GetParam().name);
            references_.push_back(take());
        }
    }
    // Starts the scenario again from its arranged device.
    snapshot arrange() {
        devroot::clear();
        GetParam().arrange();
        return take();
    }
    run_result fresh_boot() { return devroot::run_tzlinks(); }

    tracer tracer_;
    trace calls_;
    std::vector<snapshot> references_; // after one and after two fault-free boots
};

TEST_P(reliability, every_fault_heals) {
    int points = 0;
    int injections = 0;
    int windows_used = 0;
    for (std::size_t i = 0; i < calls_.size(); ++i) {
        const call& c = calls_[i];
        ++points;
        std::vector<std::string> errors = {"EIO"};
        if (!quick()) {
            errors.insert(errors.end(), {"EACCES", "ENOSPC", "EROFS"});
        }
        if (c.name == "symlink") {
            errors.push_back("EEXIST");
        }
        for (const auto& error : errors) {
            ++injections;
            const std::string what = GetParam().name + ", " + error + " at " + c.line;
            const snapshot before = arrange();
            expect_status(tracer_.run(GetParam(), {"-e", inject(c, "error=" + error)}), what);
            const run_result healing = fresh_boot();
            EXPECT_EQ(healing.status, 0) << what << "\n" << healing.output;
            windows_used += expect_healed(references_, before, take(), {{&calls_, i}}, what);
        }
    }
    std::printf("[reliability] %s: %d fault points, %d faults injected, %d documented outcomes\n",
                GetParam().name.c_str(), points, injections, windows_used);
    RecordProperty("fault_points", points);
}

TEST_P(reliability, every_crash_heals) {
    std::vector<std::size_t> kills;
    for (std::size_t i = 0; i < calls_.size(); ++i) {
        if (changes_disk(calls_[i])) {
            kills.push_back(i);
        }
    }
    kills.push_back(calls_.size()); // the complete boot
    int points = 0;
    int recovery_points = 0;
    int windows_used = 0;
    const auto crash = [&](const call* at) {
        return at == nullptr ? tracer_.run(GetParam())
                             : tracer_.run(GetParam(), {"-e", inject(*at, "signal=KILL")});
    };
    for (const std::size_t k : kills) {
        const call* at = k < calls_.size() ? &calls_[k] : nullptr;
        const std::string what = GetParam().name + ", killed at " + (at ? at->line : "the end");
        ++points;
        const snapshot before = arrange();
        EXPECT_EQ(crash(at).status, at ? -1 : 0) << what;
        const run_result healing = tracer_.run(GetParam());
        EXPECT_EQ(healing.status, 0) << what << "\n" << healing.output;
        const trace healing_calls = tracer_.calls();
        windows_used += expect_healed(references_, before, take(), {{&calls_, k}}, what);
        // A second power loss, during the healing boot, at each of its disk changes.
        for (std::size_t j = 0; j < healing_calls.size() && !quick(); ++j) {
            if (!changes_disk(healing_calls[j])) {
                continue;
            }
            ++recovery_points;
            const std::string again = what + ", then at " + healing_calls[j].line;
            arrange();
            crash(at);
            EXPECT_EQ(crash(&healing_calls[j]).status, -1) << again;
            EXPECT_EQ(fresh_boot().status, 0) << again;
            windows_used += expect_healed(references_, before, take(),
                                          {{&calls_, k}, {&healing_calls, j}}, again);
        }
    }
    std::printf("[reliability] %s: %d crash points, %d more in the healing boots, %d documented "
                "outcomes\n",
                GetParam().name.c_str(), points, recovery_points, windows_used);
    RecordProperty("crash_points", points);
    RecordProperty("recovery_crash_points", recovery_points);
}

void PrintTo(const scenario& s, std::ostream* out) {
    *out << s.name;
}

INSTANTIATE_TEST_SUITE_P(scenarios, reliability, ::testing::ValuesIn(scenarios),
                         [](const auto& info) { return info.param.name; });

} // namespace
