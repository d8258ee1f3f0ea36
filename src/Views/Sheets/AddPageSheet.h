#pragma once

#include "ViewModels/AddPageFlow.h"
#include "Views/ScreenContext.h"
#include "Views/Sheets/FadeSlide.h"
#include "Views/Sheets/PagePicker.h"
#include "Views/Sheets/Sheet.h"

#include <gtkmm/overlay.h>
#include <gtkmm/textview.h>

namespace tessaro {

/// The dialog in which a Page is connected to an account: a token is pasted, verified, and the Page
/// that it stands for is added. What happens is up to AddPageFlow; this shows it.
class AddPageSheet : public Sheet {
public:
    /// @param context, pagesVM  outlive this
    AddPageSheet(const ScreenContext& context, PagesViewModel& pagesVM, Account account);

private:
    /// The Page that would be added, as the preview shows it.
    struct Preview {
        PageInfo page;
        std::optional<std::string> avatarUrl;
        const char* caption;

        bool operator==(const Preview&) const = default;
    };

    bool onReturn(Gtk::Widget* focus) override;
    void layOutToken();
    void layOutError();
    void follow();
    void followVerification();
    void showProgress();
    void showResult();
    void focusNext();
    std::optional<Preview> preview() const;
    void show(const Preview& preview);

    const ScreenContext& context_;
    AddPageFlow flow_;
    Gtk::TextView token_;
    BusyButton verify_;
    Gtk::Box error_{Gtk::Orientation::HORIZONTAL, 6};
    Gtk::Label message_;
    PagePicker picker_;
    Gtk::Box previewPlace_;
    FadeSlide previewSlide_;
    std::optional<Preview> shownPreview_;
    Gtk::Widget* focusBefore_ = nullptr; ///< Where the keyboard was when the verification began.
    ScopedConnection focusMoves_;
    std::vector<ScopedConnection> connections_;
};

} // namespace tessaro
