#pragma once

#include "Platform/Property.h"
#include "Platform/Text.h"
#include "Views/Columns/AddButton.h"
#include "Views/Columns/Column.h"
#include "Views/Columns/RowModel.h"
#include "Views/Widgets/Accessible.h"

#include <glibmm/variant.h>
#include <gtkmm/noselection.h>
#include <gtkmm/overlay.h>
#include <gtkmm/tooltip.h>

#include <map>
#include <string>
#include <utility>

namespace tessaro {

/// A button that shows one record: a face with a dot at its lower right. The list reuses a row's
/// button for another record.
template <typename Record>
class RecordButton : public Gtk::Button {
public:
    virtual void show(const Record& record) = 0;
    virtual void setSelected(bool selected) {
        if (selected)
            this->add_css_class("selected");
        else
            this->remove_css_class("selected");
        accessible::setPressed(*this, selected);
    }

protected:
    /// @param shape  the face's style class: "round" or "square"
    explicit RecordButton(const char* shape) {
        this->set_css_classes({"borderless", "face-button", shape});
        this->set_halign(Gtk::Align::CENTER);
        this->set_child(face_);
        dot_.set_halign(Gtk::Align::END);
        dot_.set_valign(Gtk::Align::END);
        face_.add_overlay(dot_);
        this->set_has_tooltip();
        this->signal_query_tooltip().connect(
            [this](int, int, bool, const Glib::RefPtr<Gtk::Tooltip>& tooltip) {
                tooltip->set_text(tooltip_);
                return !trimWhitespaceAndNewlines(tooltip_).empty();
            },
            false);
    }

    /// Replaces set_tooltip_text(), which asks the display what is below the pointer at each call.
    /// That is slow when dozens of rows get their records at once.
    void setTooltip(std::string text) { tooltip_ = std::move(text); }
    /// @param state  the dot's style class; "none" for no dot
    void setDot(const char* state) { dot_.set_css_classes({"status-dot", state}); }
    Gtk::Overlay& face() { return face_; }

private:
    Gtk::Overlay face_;
    Gtk::Box dot_;
    std::string tooltip_;
};

/// A column of buttons for records, with an add button at its end. However long the list is, there
/// are buttons only for the rows on screen and near it.
template <typename Record>
class RecordColumn : public Column {
public:
    using Id = decltype(Record::id);
    using Commands = std::vector<Command>;

    struct Behaviour {
        std::function<RecordButton<Record>*()> makeButton; ///< Returns a managed widget.
        AddButton::Shape addShape;
        const char* addTooltip;
        std::function<void(const Record&)> choose;
        std::function<void()> add;
        std::function<Commands(const Record&)> menu;
    };

    /// Shows the records and scrolls to the selected one, now and whenever they change.
    /// @param name               of the list, for assistive technology
    /// @param records, selected  outlive this
    RecordColumn(
        const Glib::ustring& name, const tessaro::Property<std::vector<Record>>& records,
        const tessaro::Property<std::optional<Record>>& selected, Behaviour behaviour)
        : Column(name), behaviour_(std::move(behaviour)) {
        factory().signal_bind().connect(
            [this](const Glib::RefPtr<Gtk::ListItem>& row) { bind(*row); });
        factory().signal_unbind().connect(
            [this](const Glib::RefPtr<Gtk::ListItem>& row) { unbind(*row); });
        view().set_model(Gtk::NoSelection::create(rows_.list()));
        const auto showRecords = [this, &records] { rows_.setRecords(*records); };
        const auto showSelection = [this, &selected] {
            setSelected(*selected ? std::optional((*selected)->id) : std::nullopt);
        };
        recordsChanged_ = records.observe(showRecords);
        selectionChanged_ = selected.observe(showSelection);
        showRecords();
        showSelection();
    }

    ~RecordColumn() override { view().set_model({}); } // Unbinds the rows while this still exists.

    void setAddRow(bool present) { rows_.setAddRow(present); }

    /// Scrolls to the first row. New rows above the view would otherwise stay out of sight.
    void showFirst() {
        view().activate_action("list.scroll-to-item", Glib::Variant<guint>::create(0));
    }

protected:
    Commands menuOf(Gtk::Widget& widget) override {
        const auto shown = shown_.find(dynamic_cast<RecordButton<Record>*>(&widget));
        return shown == shown_.end() ? Commands{} : behaviour_.menu(*shown->second->record());
    }

private:
    using Item = RowItem<Record>;

    void setSelected(const std::optional<Id>& id) {
        if (id == selected_)
            return;
        const auto before = std::exchange(selected_, id);
        for (const auto& [button, item] : shown_)
            if (const auto& shown = item->record()->id; shown == before || shown == id)
                button->setSelected(isSelected(*item));
        if (const auto row = id ? rows_.find(*id) : std::nullopt)
            view().activate_action("list.scroll-to-item", Glib::Variant<guint>::create(*row));
    }

    bool isSelected(const Item& item) const { return selected_ && item.record()->id == *selected_; }

    void bind(Gtk::ListItem& row) {
        row.set_activatable(false);
        const auto item = std::dynamic_pointer_cast<Item>(row.get_item());
        if (!item->record()) {
            auto& button =
                *Gtk::make_managed<AddButton>(behaviour_.addShape, behaviour_.addTooltip);
            button.signal_clicked().connect(behaviour_.add);
            row.set_child(button);
            return;
        }
        auto* button = dynamic_cast<RecordButton<Record>*>(row.get_child());
        if (!button) {
            button = behaviour_.makeButton();
            button->signal_clicked().connect([this, button] { choose(*button); });
            row.set_child(*button);
        }
        shown_[button] = item;
        const auto show = [this, button, shown = item.get()] {
            button->show(*shown->record());
            button->setSelected(isSelected(*shown));
        };
        item->onUpdate = show;
        show();
    }

    void unbind(Gtk::ListItem& row) {
        const auto item = std::dynamic_pointer_cast<Item>(row.get_item());
        if (item && item->record()) {
            item->onUpdate = nullptr;
            shown_.erase(dynamic_cast<RecordButton<Record>*>(row.get_child()));
        } else {
            row.unset_child();
        }
    }

    void choose(RecordButton<Record>& button) {
        // Chooses a copy, because choosing may give the button another record.
        if (const auto shown = shown_.find(&button); shown != shown_.end())
            behaviour_.choose(Record(*shown->second->record()));
    }

    const Behaviour behaviour_;
    RowModel<Record> rows_;
    std::map<RecordButton<Record>*, Glib::RefPtr<Item>> shown_;
    std::optional<Id> selected_;
    ScopedConnection recordsChanged_;
    ScopedConnection selectionChanged_;
};

} // namespace tessaro
