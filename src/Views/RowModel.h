#pragma once

#include <giomm/liststore.h>
#include <glibmm/object.h>

#include <algorithm>
#include <functional>
#include <optional>
#include <vector>

namespace tessaro {

/// One row of a list: a record, or the place of the add button.
template <typename Record>
class RowItem : public Glib::Object {
public:
    static Glib::RefPtr<RowItem> create(std::optional<Record> record) {
        return Glib::make_refptr_for_instance(new RowItem(std::move(record)));
    }

    /// Nothing in the row of the add button.
    const std::optional<Record>& record() const { return record_; }

    /// A newer copy of the same record.
    void update(const Record& record) {
        record_ = record;
        if (onUpdate)
            onUpdate();
    }

    /// Set by whatever shows the row at present.
    std::function<void()> onUpdate;

private:
    explicit RowItem(std::optional<Record> record) : record_(std::move(record)) {}
    std::optional<Record> record_;
};

/// Keeps a list model in step with a list of records that are told apart by their `id`, so that a
/// change touches only the rows that changed. UI thread only.
template <typename Record>
class RowModel {
public:
    using Item = RowItem<Record>;

    Glib::RefPtr<Gio::ListStore<Item>> list() const { return list_; }

    void setRecords(const std::vector<Record>& records) {
        const std::size_t shorter = std::min(rows_.size(), records.size());
        std::size_t head = 0;
        while (head < shorter && isSame(head, records[head]))
            ++head;
        std::size_t tail = 0;
        while (tail < shorter - head &&
               isSame(rows_.size() - 1 - tail, records[records.size() - 1 - tail]))
            ++tail;
        const std::size_t removed = rows_.size() - head - tail;
        const std::size_t added = records.size() - head - tail;

        std::vector<Glib::RefPtr<Item>> fresh;
        fresh.reserve(added);
        for (std::size_t i = head; i < head + added; ++i)
            fresh.push_back(Item::create(records[i]));
        rows_.erase(rows_.begin() + head, rows_.begin() + head + removed);
        rows_.insert(rows_.begin() + head, fresh.begin(), fresh.end());
        if (removed > 0 || added > 0)
            list_->splice(head, removed, fresh);
        for (std::size_t i = 0; i < rows_.size(); ++i)
            if (i < head || i >= head + added)
                rows_[i]->update(records[i]);
    }

    /// Whether a row for the add button follows the records.
    void setAddRow(bool present) {
        if (present == hasAddRow_)
            return;
        hasAddRow_ = present;
        if (present)
            list_->append(Item::create(std::nullopt));
        else
            list_->remove(rows_.size());
    }

    /// The place of the record with that id.
    template <typename Id>
    std::optional<std::size_t> find(const Id& id) const {
        const auto row = std::find_if(
            rows_.begin(), rows_.end(), [&](const auto& item) { return item->record()->id == id; });
        if (row == rows_.end())
            return std::nullopt;
        return row - rows_.begin();
    }

private:
    bool isSame(std::size_t row, const Record& record) const {
        return rows_[row]->record()->id == record.id;
    }

    Glib::RefPtr<Gio::ListStore<Item>> list_ = Gio::ListStore<Item>::create();
    std::vector<Glib::RefPtr<Item>> rows_; ///< The records' rows, without the add button's.
    bool hasAddRow_ = false;
};

} // namespace tessaro
