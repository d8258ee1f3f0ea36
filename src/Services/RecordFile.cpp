#include "Services/RecordFile.h"

#include "Models/Account.h"
#include "Models/PageConfig.h"
#include "Models/RecordList.h"
#include "Platform/FileStore.h"

namespace tessaro {

template <typename Record>
RecordFile<Record>::RecordFile(std::filesystem::path file, Decode decode, Clock& clock)
    : file_(std::move(file)), decode_(decode), clock_(&clock) {}

template <typename Record>
const std::vector<Record>& RecordFile<Record>::load() {
    static const std::vector<Record> none;
    if (cache_)
        return *cache_;
    ensureFolder(file_.parent_path());
    // A missing file too: it may lie on a disk that is mounted later.
    setAsideFirst_ = true;
    const auto bytes = readFile(file_);
    if (!bytes)
        return none;
    auto records = decodeList(*bytes, decode_);
    setAsideFirst_ = !records;
    return cache_.emplace(records ? std::move(*records) : none);
}

template <typename Record>
void RecordFile<Record>::save(std::vector<Record> records) {
    cache_ = std::move(records);
    ensureFolder(file_.parent_path());
    if (setAsideFirst_ && !setAside(file_, clock_->now()))
        return;
    setAsideFirst_ = false;
    replaceFile(file_, encodeList(*cache_));
}

template class RecordFile<Account>;
template class RecordFile<PageConfig>;

} // namespace tessaro
