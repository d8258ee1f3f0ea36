#pragma once

#include <sigc++/signal.h>

#include <string>

namespace tessaro {

/// Finds a text in the page of one browser, whatever the case of its letters, and marks all places
/// where it stands. UI thread only.
class PageFinder {
public:
    virtual ~PageFinder() = default;

    /// Selects the first place from the selection on; after the last one it goes on at the top. An
    /// empty text ends the search.
    virtual void find(const std::string& text) = 0;
    /// Selects the next place of the text that is searched for, round the end of the page.
    virtual void findNext() = 0;
    virtual void findPrevious() = 0;
    /// Takes the marks away; the selection stays.
    virtual void end() = 0;

    /// Emitted with the number of places some time after a search has begun, and with 0 when there
    /// is none left to go on to.
    sigc::signal<void(unsigned)>& signalCounted() { return counted_; }

protected:
    sigc::signal<void(unsigned)> counted_;
};

} // namespace tessaro
