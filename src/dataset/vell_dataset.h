// One complete, versioned set of time-zone data: a zoneinfo component and an ICU
// component from the same place, either the system partition or an update directory.
#pragma once

#include "dataset/vell_dataset_component.h"
#include "version/vell_version.h"

#include <memory>
#include <string>
#include <vector>

class vell_dataset {
  public:
    // The system partition's data set.
    vell_dataset();
    // An update's data set under /var/db/timezone/tz/, or the system's for an empty path.
    // Throws std::invalid_argument("badpath") for any other path.
    explicit vell_dataset(const std::string& path);

    vell_dataset(const vell_dataset&) = delete;
    vell_dataset& operator=(const vell_dataset&) = delete;

    std::string get_version_string() const { return version_string; }
    // Whether each component accepts other's component at the same position.
    bool compatible_with(const vell_dataset& other) const;
    // Activates the components in order; nothing is rolled back on failure.
    void activate() const;
    // Compares versions only.
    bool operator>(const vell_dataset& other) const { return version > other.version; }
    // Compares paths only.
    bool operator==(const vell_dataset& other) const { return path == other.path; }

    vell_version version;
    std::string version_string;
    std::string path; // empty for the system partition
    std::vector<std::shared_ptr<vell_dataset_component>> components;

  private:
    void create_components();
};
