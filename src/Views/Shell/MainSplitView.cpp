#include "Views/Shell/MainSplitView.h"

#include "Platform/Gtk/PictureDecoder.h"
#include "Views/Shell/SystemReport.h"
#include "Views/Widgets/Layout.h"

#include <gdkmm/frameclock.h>
#include <gtkmm/separator.h>

#include <algorithm>
#include <iterator>
#include <utility>

namespace tessaro {

MainSplitView::MainSplitView(const ScreenContext& context, SupportClient& support)
    : Gtk::Box(Gtk::Orientation::VERTICAL),
      context_(context),
      accountsVM_(context.store, context.device, context.clock),
      pagesVM_(
          context.store, context.logger, context.clock, context.makeGraphClient, isWholePicture),
      accounts_(context, accountsVM_),
      pages_(context, pagesVM_),
      inbox_(context, accountsVM_, pagesVM_),
      footer_(context, support),
      selection_(context, accountsVM_, pagesVM_, inbox_) {
    set_size_request(900, 560);
    columns_.set_vexpand();
    appendAll(
        columns_, accounts_, *Gtk::make_managed<Gtk::Separator>(Gtk::Orientation::VERTICAL), pages_,
        *Gtk::make_managed<Gtk::Separator>(Gtk::Orientation::VERTICAL), inbox_);
    appendAll(*this, columns_, footer_);
    accountChanged_ = accountsVM_.selectedAccount.observe(
        [this] { pages_.setAccount(*accountsVM_.selectedAccount); });
    context.inbox.fullScreen.connect(sigc::mem_fun(*this, &MainSplitView::showFullScreen));
    context.inbox.walkAreas.connect(sigc::mem_fun(*this, &MainSplitView::walkAreas));
}

void MainSplitView::on_map() {
    Gtk::Box::on_map();
    // The keyboard begins at the accounts.
    accounts_.child_focus(Gtk::DirectionType::TAB_FORWARD);
    firstFrame_ = connectSignal<void(GdkFrameClock*)>(
        get_frame_clock()->gobj(), "after-paint", [this](GdkFrameClock*) {
            engineLoaded_ = context_.engine.whenLoaded([this](Engine* engine) {
                if (get_realized() && !std::exchange(isReported_, true))
                    report(engine).detach();
            });
            firstFrame_.disconnect();
        });
}

Task<void> MainSplitView::report(const Engine* engine) {
    const auto alive = lifetime_.watch();
    const std::string line = co_await systemReport(engine, this);
    if (alive)
        context_.logger.log(line, "INFO");
}

void MainSplitView::walkAreas(bool isForward) {
    Gtk::Widget* const areas[] = {&accounts_, &pages_, &inbox_, &footer_};
    constexpr std::size_t count = std::size(areas);
    const auto* const focus = get_root()->get_focus();
    const auto hasFocus = [focus](Gtk::Widget* area) {
        return focus && (focus == area || focus->is_ancestor(*area));
    };
    const auto current =
        static_cast<std::size_t>(std::ranges::find_if(areas, hasFocus) - std::begin(areas));
    // From outside, such as from the header, it goes to the first or the last.
    const std::size_t from = current < count ? current : isForward ? count - 1 : 0;
    for (std::size_t step = 1; step <= count; ++step) {
        auto* const area = areas[(from + (isForward ? step : count - step)) % count];
        if (area->get_mapped() && area->child_focus(Gtk::DirectionType::TAB_FORWARD))
            return;
    }
}

void MainSplitView::showFullScreen(bool isFullScreen) {
    for (auto* child = columns_.get_first_child(); child; child = child->get_next_sibling())
        child->set_visible(child == &inbox_ || !isFullScreen);
    footer_.set_visible(!isFullScreen);
}

} // namespace tessaro
