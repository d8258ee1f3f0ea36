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

    /// A newer copy of the record, or another one in its place.
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
/// change makes and drops no more rows than it must. UI thread only.
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
        // In between, rows that are there already take the new records; what is left is spliced.
        const std::size_t kept = shorter - tail;
        const std::size_t removed = rows_.size() - tail - kept;
        const std::size_t added = records.size() - tail - kept;

        std::vector<Glib::RefPtr<Item>> fresh;
        fresh.reserve(added);
        for (std::size_t i = kept; i < kept + added; ++i)
            fresh.push_back(Item::create(records[i]));
        const auto place = rows_.begin() + static_cast<std::ptrdiff_t>(kept);
        rows_.erase(place, place + static_cast<std::ptrdiff_t>(removed));
        rows_.insert(rows_.begin() + static_cast<std::ptrdiff_t>(kept), fresh.begin(), fresh.end());
        if (removed > 0 || added > 0)
            list_->splice(static_cast<guint>(kept), static_cast<guint>(removed), fresh);
        for (std::size_t i = 0; i < rows_.size(); ++i)
            if (i < kept || i >= kept + added)
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
