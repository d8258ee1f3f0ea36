#pragma once

#include "Platform/Clock.h"
#include "Platform/Result.h"

#include <nlohmann/json_fwd.hpp>

#include <filesystem>
#include <optional>
#include <vector>

namespace tessaro {

/// A file that holds one list of records, and the copy of that list in memory. Not safe for several
/// threads at once. The folder of the file is made when it is needed.
///
/// Nothing is reported. What could not be read or decoded is set aside before a save would replace
/// it, because it may be all that the user has.
template <typename Record>
class RecordFile {
public:
    using Decode = Result<Record> (*)(const nlohmann::json&);

    /// @param decode  reads one record
    /// @param clock   stamps a file that is set aside; must outlive this
    RecordFile(std::filesystem::path file, Decode decode, Clock& clock);

    /// The list in memory or else in the file; empty when the file is missing, cannot be read, in
    /// which case the next call tries again, or does not decode. Valid until the next call.
    const std::vector<Record>& load();

    /// Keeps the list in memory and then replaces the file.
    void save(std::vector<Record> records);

private:
    std::filesystem::path file_;
    Decode decode_;
    Clock* clock_;
    std::optional<std::vector<Record>> cache_;
    bool setAsideFirst_ = false;
};

} // namespace tessaro
