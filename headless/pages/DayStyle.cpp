#include "headless/pages/DayStyle.h"

namespace logchecker {

namespace {

constexpr char kDayStyle[] = R"css(
.kind { color: var(--quiet); margin: 0; }
.verdict { font-size: 1.1rem; }
.day + .day { border-top: 1px solid var(--line); }
.reason, .warnings {
  border-left: 0.3rem solid var(--warn); background: var(--warn-ground); color: var(--warn);
  padding: 0.5rem 0.8rem;
}
.reason.quiet { border-color: var(--none); background: var(--none-ground); color: var(--none); }
.warnings { padding-left: 2rem; }
.reason details, .warnings details { display: inline-block; vertical-align: top; max-width: 100%; }
.muted details { display: inline-block; vertical-align: top; }
.odd { background: var(--bad-ground); color: var(--bad); font-weight: 700; }
td.odd::before { content: "\2260\00a0"; }
.some { color: var(--bad); font-weight: 700; }
td.some a { color: inherit; }
td.none { color: var(--quiet); background: var(--lane); }
td.mute { background: var(--bad-ground); color: var(--bad); }
.adverts td { min-width: 12rem; vertical-align: top; overflow-wrap: anywhere; }
.path { min-width: 15rem; overflow-wrap: anywhere; }
.name { min-width: 8rem; overflow-wrap: anywhere; }
.extent { white-space: nowrap; }
.adverts td b { float: right; margin-left: 0.75rem; font-weight: 600; }
.adverts td.odd b { font-weight: 700; }
.adverts td.sum { text-align: right; font-weight: 700; }
.adverts small { display: block; color: var(--quiet); font-weight: 400; }
.adverts .odd small, .adverts .mute small { color: inherit; }
.adverts caption { color: var(--text); }
.ways { font-size: 0.9rem; }
figcaption { margin: 0.25rem 0 1rem; }
.day-picture { display: block; width: 100%; min-width: 60rem; max-width: 80rem; height: auto; }
.day-picture text { fill: var(--text); font-size: 13px; }
.day-picture .axis text { fill: var(--quiet); text-anchor: middle; font-size: 12px; }
.day-picture .legend text { fill: var(--quiet); font-size: 12px; }
.hours { fill: none; stroke: var(--line); stroke-width: 1; }
.lane { fill: var(--lane); }
.blocks { fill: var(--block); }
.passed { fill: none; stroke: var(--warn); stroke-width: 1.5; stroke-dasharray: 1.5 1.5; }
.band { fill: var(--bad); fill-opacity: 0.12; }
path.odd { fill: var(--bad); }
.even { fill: var(--block); stroke: var(--bad); stroke-width: 1; }
.gap { fill: var(--raised); stroke: var(--bad); stroke-width: 1.5; stroke-dasharray: 3 2; }
.gap.usual { fill: none; stroke-width: 1; stroke-dasharray: 2 2; }
.day-picture .cross { fill: var(--bad); text-anchor: middle; font-size: 16px; font-weight: 700; }
.flag { fill: var(--bad); }
.day-picture .flag-sign { fill: var(--ground); text-anchor: middle; font-weight: 700; }
path.mute, .silent path { fill: var(--bad); stroke: var(--raised); stroke-width: 1; }
.mark:hover .band, .mark:focus .band { fill-opacity: 0.3; }
.mark:focus-visible .flag { stroke: var(--text); stroke-width: 2; }
@media print {
  .day-picture { min-width: 0; }
  .break { break-inside: avoid; }
  .ways { display: none; }
  .adverts { font-size: 7.5pt; }
  .adverts td { min-width: 0; overflow-wrap: normal; }
  .adverts td b { float: none; display: block; margin: 0; }
  .path { min-width: 0; }
  .verdict { font-size: 1rem; }
  .day + .day { break-before: page; }
}
)css";

}  // namespace

std::string_view DayStyle() { return kDayStyle; }

}  // namespace logchecker
