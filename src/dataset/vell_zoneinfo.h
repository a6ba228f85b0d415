// Compiled tz database files.
#pragma once

#include "dataset/vell_dataset_component.h"

#include <string>

class vell_zoneinfo final : public vell_dataset_component {
  public:
    vell_zoneinfo() : vell_zoneinfo(std::string()) {}
    explicit vell_zoneinfo(const std::string& dataset_path);

    bool compatible_schema(const vell_dataset_component& other) const override;
    void activate() const override;

    std::string get_version_string() const { return version_string; }

  private:
    void read_version();

    std::string path;           // the zoneinfo directory
    std::string version_string; // first word of its +VERSION file
};
