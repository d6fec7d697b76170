// The user's guide: pages that lie in a folder beside the program, one for each task, which the
// desktop's own browser shows.
#pragma once

#include <QString>

class QWidget;

namespace logchecker {

// The pages that windows lead to, by their files' names without the ending.
inline constexpr char kGuideTasks[] = "index";
inline constexpr char kGuideCheckDay[] = "check-a-day";
inline constexpr char kGuideWhy[] = "find-out-why-a-break-differs";
inline constexpr char kGuideBreak[] = "look-at-a-break-in-every-split";
inline constexpr char kGuideLoadDay[] = "load-another-day";
inline constexpr char kGuideSaveAndPrint[] = "save-and-print-what-differs";
inline constexpr char kGuideSetUp[] = "set-a-station-up";
inline constexpr char kGuideCarts[] = "say-where-the-carts-lie";
inline constexpr char kGuideSplit[] = "change-a-split";
inline constexpr char kGuideBrowser[] = "pick-a-cart";
inline constexpr char kGuideSearch[] = "search-the-carts";
inline constexpr char kGuideNotes[] = "read-a-carts-notes";
inline constexpr char kGuideTrouble[] = "when-something-is-wrong";
inline constexpr char kGuideKeys[] = "all-keys";

// The page that tells of a window, for all that is in it and for dialogs that it opens.
void SetGuidePage(QWidget& window, const char* page);
// The window has a use of its own for F1, and opens its page by another key.
void KeepF1(QWidget& window);

// The file of a page, whether it is there or not.
QString GuideFile(const QString& page);

// Opens the page of the window that this widget is in; the list of tasks where none has one. Says
// where the guide lies when it can't be opened.
void OpenGuide(const QWidget* from);

// From here on F1 opens the guide in every window that has no other use for that key.
void HoldGuideKey();

}  // namespace logchecker
