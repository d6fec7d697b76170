#include "headless/pages/Style.h"

namespace logchecker {

namespace {

constexpr char kCommonStyle[] = R"css(
:root {
  color-scheme: light dark;
  --ground: #fbfbf9; --raised: #ffffff; --text: #1c2127; --quiet: #565f6a; --line: #d5dadf;
  --link: #0b57a4; --lane: #eceff2; --block: #64809c;
  --good: #175c31; --good-ground: #e3f3e8; --bad: #ab1a12; --bad-ground: #fdeae8;
  --warn: #6f4a00; --warn-ground: #fff1cf; --none: #4d5660; --none-ground: #eceff2;
}
@media (prefers-color-scheme: dark) {
  :root {
    --ground: #14171b; --raised: #1b1f24; --text: #e7eaee; --quiet: #a6b0bb; --line: #363d46;
    --link: #8ec5ff; --lane: #262c33; --block: #7c98b4;
    --good: #86dca0; --good-ground: #16301f; --bad: #ff9a90; --bad-ground: #3d1b19;
    --warn: #ffd27a; --warn-ground: #35290c; --none: #b4bdc7; --none-ground: #2a3037;
  }
}
*, *::before, *::after { box-sizing: border-box; }
html { -webkit-text-size-adjust: 100%; text-size-adjust: 100%; }
body {
  margin: 0 auto; padding: 1.25rem clamp(0.75rem, 2.5vw, 2rem) 3rem; max-width: 90rem;
  background: var(--ground); color: var(--text);
  font: 1rem/1.5 system-ui, "Segoe UI", "DejaVu Sans", sans-serif; overflow-wrap: anywhere;
}
h1 { font-size: 1.7rem; line-height: 1.2; margin: 0 0 0.25rem; }
h2 { font-size: 1.35rem; line-height: 1.25; margin: 2.5rem 0 0.5rem; }
h3 { font-size: 1.1rem; line-height: 1.3; margin: 2rem 0 0.5rem; }
h4 { font-size: 1rem; line-height: 1.3; margin: 1.5rem 0 0.4rem; }
p, ul, ol, figure { margin: 0.4rem 0; }
ul, ol { padding-left: 1.4rem; }
a { color: var(--link); text-underline-offset: 0.15em; }
:focus-visible { outline: 3px solid var(--link); outline-offset: 2px; }
.muted { color: var(--quiet); }
.skip { position: absolute; left: -100rem; }
.skip:focus { position: static; display: inline-block; padding: 0.25rem 0; }
footer { margin-top: 3rem; }
table { border-collapse: collapse; font-variant-numeric: tabular-nums; background: var(--raised); }
caption { text-align: left; color: var(--quiet); padding: 0 0 0.35rem; }
th, td {
  border: 1px solid var(--line); padding: 0.3rem 0.6rem; text-align: left; vertical-align: baseline;
  overflow-wrap: normal;
}
thead th { background: var(--lane); font-weight: 600; }
tbody th { font-weight: 600; }
.number { text-align: right; white-space: nowrap; }
td details, th details { max-width: 30rem; overflow-wrap: anywhere; font-weight: inherit; }
summary { cursor: pointer; }
.scroll { overflow-x: auto; max-width: 100%; margin: 0.4rem 0; padding: 2px; }
.badge {
  display: inline-block; padding: 0.1rem 0.55rem; border: 1px solid currentcolor; border-radius: 0.4rem;
  font-weight: 600;
}
.sign { display: inline-block; min-width: 1em; text-align: center; }
.match { color: var(--good); background: var(--good-ground); }
.differs, .trouble { color: var(--bad); background: var(--bad-ground); }
.trouble { border-style: double; border-width: 3px; }
.see, .old { color: var(--warn); background: var(--warn-ground); }
.old { border-style: dashed; }
.no-log { color: var(--none); background: var(--none-ground); border-style: dashed; }
:target { outline: 3px solid var(--link); outline-offset: 2px; }
@media (max-width: 40rem) { h1 { font-size: 1.4rem; } th, td { padding: 0.25rem 0.4rem; } }
@page { size: A4 landscape; margin: 12mm; }
@media print {
  :root {
    color-scheme: light;
    --ground: #ffffff; --raised: #ffffff; --text: #000000; --quiet: #444c55; --line: #b4bbc3;
    --link: #0b57a4; --lane: #eceff2; --block: #64809c;
    --good: #175c31; --good-ground: #e3f3e8; --bad: #ab1a12; --bad-ground: #fdeae8;
    --warn: #6f4a00; --warn-ground: #fff1cf; --none: #4d5660; --none-ground: #eceff2;
  }
  body { padding: 0; max-width: none; font-size: 9pt; print-color-adjust: exact; }
  .scroll { overflow: visible; }
  .skip { display: none; }
  h1 { font-size: 1.4rem; }
  h2 { font-size: 1.2rem; margin-top: 1rem; }
  h3, h4 { margin-top: 0.8rem; }
  th, td { padding: 0.15rem 0.35rem; }
  h2, h3, h4 { break-after: avoid; }
  tr, figure { break-inside: avoid; }
  thead { display: table-header-group; }
  a { color: inherit; }
}
)css";

}  // namespace

std::string_view CommonStyle() { return kCommonStyle; }

}  // namespace logchecker
