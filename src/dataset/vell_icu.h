// ICU time-zone data files, whose format (the schema) must match the installed system.
#pragma once

#include "dataset/vell_dataset_component.h"

#include <string>

class vell_icu final : public vell_dataset_component {
  public:
    vell_icu() : vell_icu(std::string()) {}
    // Throws the int value of errno when the update's directory walk cannot be opened.
    explicit vell_icu(const std::string& dataset_path);

    bool compatible_schema(const vell_dataset_component& other) const override;
    void activate() const override;

  private:
    void initialize();

    std::string schema; // digits and one of l, b, e; empty when none was found
    std::string path;   // the ICU data directory
};
