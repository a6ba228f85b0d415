// One kind of time-zone data inside a data set.
#pragma once

#include <string>

class vell_dataset_component {
  public:
    vell_dataset_component() = default;
    explicit vell_dataset_component(const std::string& dataset_path) : dataset_path(dataset_path) {}

    // Whether this component's data can be used together with other's.
    virtual bool compatible_schema(const vell_dataset_component& other) const = 0;
    // Re-points the system link for this kind of data at this component's files.
    virtual void activate() const = 0;

  protected:
    // Not virtual: components are owned only by shared pointers made from the concrete
    // type, which destroy them as that type. Protected, so nothing deletes through the base.
    ~vell_dataset_component() = default;
    vell_dataset_component(const vell_dataset_component&) = default;
    vell_dataset_component& operator=(const vell_dataset_component&) = default;

    // Directory of the data set; empty for the system partition.
    std::string dataset_path;
};
