#include "headless/pages/BoardStyle.h"

namespace logchecker {

namespace {

// On a wide screen the tables have the page's width and need no box to scroll in, so their heads
// can stay in sight while the page scrolls. On a narrow one the names stay in sight.
constexpr char kBoardStyle[] = R"css(
.counts { list-style: none; padding: 0; display: flex; flex-wrap: wrap; gap: 0.5rem; margin: 0.9rem 0; }
.counts .badge { padding: 0.25rem 0.8rem; font-weight: 400; }
.counts .count { font-size: 1.35rem; font-weight: 700; }
.counts a { color: inherit; }
.worst li { padding: 0.15rem 0; }
.board { margin: 0.6rem 0 1.5rem; }
.board table { border-collapse: separate; border-spacing: 0; }
.board th, .board td { border-width: 0 1px 1px 0; line-height: 1.25; }
.board th:first-child { border-left-width: 1px; min-width: 8rem; max-width: 16rem; overflow-wrap: anywhere; }
.board thead th { border-top-width: 1px; min-width: 4.6rem; font-size: 0.85rem; }
.board time span { white-space: nowrap; }
.board td { padding: 0; font-size: 0.85rem; border-color: var(--line); border-style: solid; }
.board td a { display: block; padding: 0.3rem 0.25rem; color: inherit; text-decoration: none; }
.board td a:hover { text-decoration: underline; }
.board a:focus-visible { outline-offset: -3px; }
.board .differs, .board .trouble { font-weight: 700; }
.board .match { font-weight: 400; }
.board .none { color: var(--quiet); padding: 0.3rem 0.25rem; }
.board tbody th, .board thead th:first-child { position: sticky; left: 0; background: var(--raised); }
.board thead th:first-child { background: var(--lane); }
.days { width: 100%; }
.days th:first-child { width: 10.5rem; }
.days th:nth-child(2) { width: 11rem; }
.days td { overflow-wrap: anywhere; }
.days td .badge { overflow-wrap: normal; }
.days .when { display: inline-block; }
.paper { display: none; }
section { margin-bottom: 2rem; }
@media (min-width: 75rem) {
  .board .scroll { overflow: visible; }
  .board .many { table-layout: fixed; width: 100%; }
  .board .many th:first-child { width: 11rem; }
  .board thead th { position: sticky; top: 0; z-index: 1; }
  .board thead th:first-child { z-index: 2; }
}
@media (max-width: 40rem) {
  .counts { display: grid; grid-template-columns: 1fr 1fr; }
  .counts .badge { display: block; padding: 0.2rem 0.5rem; }
  .board th:first-child { max-width: 8rem; }
  .days th:first-child { width: 4.5rem; }
  .days th:nth-child(2) { width: 6.5rem; }
  .days .badge { padding: 0.1rem 0.3rem; }
}
@media print {
  .board .many { table-layout: fixed; width: 100%; }
  .board thead th { position: static; font-size: 7.5pt; min-width: 0; }
  .board tbody th, .board thead th:first-child { position: static; }
  .board th:first-child { width: 32mm; min-width: 0; }
  .board td { font-size: 7.5pt; }
  .board td a { padding: 1mm; }
  .all-right { display: none; }
  .paper { display: block; }
  .board thead, .board caption { break-after: avoid; }
}
)css";

}  // namespace

std::string_view BoardStyle() { return kBoardStyle; }

}  // namespace logchecker
