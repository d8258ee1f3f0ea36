#pragma once

#include <giomm/liststore.h>
#include <glibmm/object.h>

#include <algorithm>
#include <functional>
#include <optional>
#include <vector>

namespace tessaro {

/// One row of a list: a record, or the add button.
template <typename Record>
class RowItem : public Glib::Object {
public:
    static Glib::RefPtr<RowItem> create(std::optional<Record> record) {
        return Glib::make_refptr_for_instance(new RowItem(std::move(record)));
    }

    /// The row of the add button has no record.
    const std::optional<Record>& record() const { return record_; }

    /// Replaces the record by a newer copy or by another record.
    void update(const Record& record) {
        record_ = record;
        if (onUpdate)
            onUpdate();
    }

    /// Called after an update. Set by the button that shows the row now.
    std::function<void()> onUpdate;

private:
    explicit RowItem(std::optional<Record> record) : record_(std::move(record)) {}
    std::optional<Record> record_;
};

/// Keeps a list model in step with a list of records, which it tells apart by their `id`. A change
/// makes and drops as few rows as possible. UI thread only.
template <typename Record>
class RowModel {
public:
    using Item = RowItem<Record>;

    Glib::RefPtr<Gio::ListStore<Item>> list() const { return list_; }

    void setRecords(const std::vector<Record>& records) {
        const std::size_t before = list_->get_n_items() - hasAddRow_;
        const std::size_t shorter = std::min(before, records.size());
        std::size_t head = 0;
        while (head < shorter && isSame(head, records[head]))
            ++head;
        std::size_t tail = 0;
        while (tail < shorter - head &&
               isSame(before - 1 - tail, records[records.size() - 1 - tail]))
            ++tail;
        // Between head and tail, existing rows take the new records. The remainder is spliced.
        const std::size_t kept = shorter - tail;
        std::vector<Glib::RefPtr<Item>> fresh;
        for (std::size_t i = kept; i < records.size() - tail; ++i)
            fresh.push_back(Item::create(records[i]));
        if (before > shorter || !fresh.empty())
            list_->splice(static_cast<guint>(kept), static_cast<guint>(before - shorter), fresh);
        for (std::size_t i = 0; i < records.size(); ++i)
            if (i < kept || i >= kept + fresh.size())
                row(i)->update(records[i]);
    }

    /// Adds or removes the row of the add button, which follows the records.
    void setAddRow(bool present) {
        if (present == hasAddRow_)
            return;
        hasAddRow_ = present;
        if (present)
            list_->append(Item::create(std::nullopt));
        else
            list_->remove(list_->get_n_items() - 1);
    }

    /// The index of the record with that id.
    template <typename Id>
    std::optional<guint> find(const Id& id) const {
        for (guint i = 0; i < list_->get_n_items() - hasAddRow_; ++i)
            if (row(i)->record()->id == id)
                return i;
        return std::nullopt;
    }

private:
    Glib::RefPtr<Item> row(std::size_t index) const {
        return list_->get_item(static_cast<guint>(index));
    }
    bool isSame(std::size_t index, const Record& record) const {
        return row(index)->record()->id == record.id;
    }

    Glib::RefPtr<Gio::ListStore<Item>> list_ = Gio::ListStore<Item>::create();
    bool hasAddRow_ = false;
};

} // namespace tessaro
