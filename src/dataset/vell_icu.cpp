#include "dataset/vell_icu.h"

#include "fs/paths.h"
#include "fs/primitives.h"
#include "version/vell_regex.h"

#include <cerrno>
#include <cstring>
#include <err.h>
#include <fstream>
#include <fts.h>
#include <memory>
#include <regex>
#include <sys/stat.h>

namespace {

struct walk_closer {
    void operator()(FTS* walk) const { static_cast<void>(fts_close(walk)); }
};

// The format named by the first readable data file directly inside folder, in the folder's
// own order; empty when there is none. The walk is closed however this returns.
std::string format_in(const std::string& folder) {
    static const vell_regex pattern(vell_patterns::icu_data_file, vell_regex::ECMAScript);
    std::string root = folder;
    char* roots[] = {root.data(), nullptr};
    const std::unique_ptr<FTS, walk_closer> walk(
        fts_open(roots, FTS_COMFOLLOW | FTS_PHYSICAL | FTS_XDEV, nullptr));
    if (!walk) {
        const int error = errno;
        warn("tz_icu::initialize: fts_open of %s failed, %s", folder.c_str(), strerror(error));
        throw error;
    }
    while (FTSENT* entry = fts_read(walk.get())) {
        // Only a readable regular file directly inside the folder can name the format.
        if (entry->fts_errno != 0 || entry->fts_level != 1 || entry->fts_namelen == 0 ||
            entry->fts_info != FTS_F || (entry->fts_statp->st_mode & S_IROTH) == 0) {
            continue;
        }
        const std::string name(entry->fts_name, entry->fts_namelen);
        std::smatch match;
        if (std::regex_match(name, match, pattern)) {
            return match[1].str();
        }
    }
    return {};
}

} // namespace

vell_icu::vell_icu(const std::string& dataset_path)
    : vell_dataset_component(dataset_path),
      path(dataset_path.empty() ? std::string(vell_paths::system_icu) : dataset_path + "/icutz") {
    initialize();
}

void vell_icu::initialize() {
    if (dataset_path.empty()) {
        // The installed system names the format it expects.
        std::ifstream file(path + "/icutzformat.txt");
        file >> schema;
        return;
    }
    // An update names its format in the name of its data file.
    schema = format_in(path);
    if (schema.empty()) {
        warn("No ICU schema found for %s", dataset_path.c_str());
    }
}

bool vell_icu::compatible_schema(const vell_dataset_component& other) const {
    const auto* other_icu = dynamic_cast<const vell_icu*>(&other);
    if (other_icu == nullptr) {
        warn("vell_icu::compatible_schema: could not dynamic_cast other component");
        return false;
    }
    return schema == other_icu->schema;
}

void vell_icu::activate() const {
    try {
        vell_fs::remove(vell_paths::icutz_link);
        vell_fs::remove(vell_paths::legacy_icutz_link);
    } catch (...) {
        warn("unlink of ICU softlink failed");
    }
    // The system partition's ICU data is used through no link at all.
    if (!dataset_path.empty()) {
        vell_fs::create_symlink(path, vell_paths::icutz_link);
    }
}
