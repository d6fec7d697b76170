// The verbs of logcheck, each with its options.
#pragma once

#include "headless/OptionTexts.h"

namespace logchecker {

// Each adds its verb to `app`; the parser fills `options` and `raw`, which outlive it.
void AddCheckVerb(CLI::App& app, Options& options, RawTexts& raw);
void AddStationsVerb(CLI::App& app, Options& options, RawTexts& raw);
void AddBoardVerb(CLI::App& app, Options& options, RawTexts& raw);
void AddWatchVerb(CLI::App& app, Options& options, RawTexts& raw);
void AddShowVerb(CLI::App& app, Options& options, RawTexts& raw);
void AddCartVerb(CLI::App& app, Options& options, RawTexts& raw);
void AddSampleVerb(CLI::App& app, Options& options, RawTexts& raw);

}  // namespace logchecker
