#pragma once

#include "interface/Record.h"

#include <vector>

namespace zarvil {

/// Device records in the order of their arrival, equal ones side by side.
class DeviceList {
public:
    void add(Record record) { records_.push_back(std::move(record)); }
    void clear() { records_.clear(); }
    [[nodiscard]] const std::vector<Record>& records() const { return records_; }

private:
    std::vector<Record> records_;
};

} // namespace zarvil
