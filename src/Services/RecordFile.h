#pragma once

#include "Platform/Clock.h"
#include "Platform/Result.h"

#include <nlohmann/json_fwd.hpp>

#include <filesystem>
#include <optional>
#include <vector>

namespace tessaro {

/// A file with one list of records, and the copy of that list in memory. One thread at a time. The
/// folder of the file is made when it is needed.
///
/// No error is reported. A file that could not be read or decoded is set aside before a save would
/// replace it, because it may be the only copy of the user's data.
template <typename Record>
class RecordFile {
public:
    using Decode = Result<Record> (*)(const nlohmann::json&);

    /// @param decode  reads one record
    /// @param clock   stamps a file that is set aside; must outlive this
    RecordFile(std::filesystem::path file, Decode decode, Clock& clock);

    /// The list in memory, else in the file. Empty when the file is missing, cannot be read or does
    /// not decode. A file that could not be read is tried again at the next call. The result is
    /// valid until the next call.
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
