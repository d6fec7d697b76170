// The page of a day, as a browser's parser understands it.
#include <algorithm>
#include <set>

#include "cartstore/Velmar_Cart_Routines.h"
#include "common/GeneralSettings.h"
#include "headless/DayCheck.h"
#include "headless/DayName.h"
#include "headless/Reports.h"
#include "headless/Station.h"
#include "headless/pages/DayWords.h"
#include "headless/pages/Html.h"
#include "headless/pages/PictureScale.h"
#include "headless/pages/Sha256.h"
#include "platform/StationText.h"
#include "shell/LoadGeneralSettings.h"
#include "tests/support/StationTest.h"
#include "tests/support/posix/PageTexts.h"
#include "tests/support/posix/PageTree.h"

namespace logchecker {
namespace {

constexpr int32_t kDay = 46402;  // Friday 2027-01-15

class DayPageTest : public StationTest {
 protected:
  // Writes the sample and checks its days.
  CheckReport CheckSample(const SampleStation& station) {
    WriteSampleStation(folder().Path("station"), station);
    LoadGeneralSettings();
    LoadAudioSettings(kFamilySettingsFile, "");
    EXPECT_EQ(0, OpenAudiowall(0, false));
    CheckReport report;
    report.station = "Larkfield";
    report.settings = "/srv/larkfield";
    report.checkedAt = "2027-01-14T14:03:21Z";
    for (int32_t i = 0; i < station.days; ++i) {
      report.days.push_back(CheckDay(station.firstDay + i));
    }
    return report;
  }

  static SampleStation Station(int32_t mistakes, const SampleSizes& sizes = {}) {
    SampleStation station;
    station.firstDay = kDay;
    station.sizes = sizes;
    station.mistakes = mistakes;
    return station;
  }
};

std::vector<std::string> TextsOf(const std::vector<PageElement>& elements,
                                 const std::string& name) {
  std::vector<std::string> texts;
  for (const PageElement& element : elements) {
    if (element.name == name) texts.push_back(element.text);
  }
  return texts;
}

bool BeginsWith(const std::string& text, const std::string& beginning) {
  return text.compare(0, beginning.size(), beginning) == 0;
}

// The cells of each row of mismatches, as the page has them.
std::vector<std::vector<std::string>> MismatchRows(const PageTree& page, const DayReport& day) {
  std::vector<std::vector<std::string>> rows;
  for (size_t i = 0; page.Has(RowId(day, i)); ++i) {
    const std::vector<PageElement> inside = page.Inside(RowId(day, i));
    rows.push_back(TextsOf(inside, "th"));
    for (const std::string& text : TextsOf(inside, "td")) rows.back().push_back(text);
  }
  return rows;
}

std::vector<std::vector<std::string>> ResultRows(const DayReport& day) {
  std::vector<std::vector<std::string>> rows;
  for (size_t i = 0; i < day.mismatches.size(); ++i) {
    rows.push_back({TimeText(day, i)});
    for (size_t n = 0; n < day.splits.size(); ++n) rows.back().push_back(CellText(day, i, n));
  }
  return rows;
}

// The sum of what the flags say: each is one mismatch, or so many as its number says.
size_t FlaggedMismatches(const PageTree& page) {
  size_t count = 0;
  for (const PageElement& sign : page.OfClass("flag-sign")) {
    count += std::isdigit(static_cast<unsigned char>(sign.text[0])) ? std::stoul(sign.text) : 1;
  }
  return count;
}

void ExpectLinksLead(const PageTree& page) {
  const std::vector<std::string> ids = page.Values("id");
  const std::set<std::string> places(ids.begin(), ids.end());
  EXPECT_EQ(places.size(), ids.size()) << "a place has a name of its own";
  for (const std::string& target : page.Values("href")) {
    ASSERT_EQ('#', target[0]) << target;
    EXPECT_EQ(1U, places.count(target.substr(1))) << target;
  }
  for (const std::string& labels : page.Values("aria-labelledby")) {
    EXPECT_EQ(1U, places.count(labels.substr(0, labels.find(' '))));
    EXPECT_EQ(1U, places.count(labels.substr(labels.find(' ') + 1)));
  }
}

void ExpectNothingRuns(const PageTree& page, const std::string& html) {
  const std::set<std::string> refused = {"script", "link",  "img",    "image", "iframe",
                                         "object", "embed", "source", "form",  "input",
                                         "base",   "use",   "video",  "audio", "foreignobject"};
  for (const PageElement& element : page.elements) {
    EXPECT_EQ(0U, refused.count(element.name)) << element.name;
    for (const auto& [name, value] : element.attributes) {
      EXPECT_FALSE(BeginsWith(name, "on")) << name;
      EXPECT_NE("style", name);
      EXPECT_NE("src", name);
      EXPECT_EQ(std::string::npos, value.find("javascript:"));
    }
  }
  EXPECT_EQ(0U, page.errors);
  EXPECT_EQ(0U, page.comments);
  const std::vector<PageElement> styles = page.Named("style");
  ASSERT_EQ(1U, styles.size());
  EXPECT_EQ(std::string::npos, styles[0].text.find("url("));
  EXPECT_EQ(std::string::npos, styles[0].text.find("@import"));
  const std::vector<PageElement> metas = page.Named("meta");
  ASSERT_LT(1U, metas.size());
  EXPECT_EQ("Content-Security-Policy", metas[1].attributes.at("http-equiv"));
  EXPECT_EQ("default-src 'none'; style-src 'sha256-" + Sha256Base64(styles[0].text) +
                "'; base-uri 'none'; form-action 'none'",
            metas[1].attributes.at("content"));
  EXPECT_EQ(std::string::npos, html.find("://"));
}

TEST_F(DayPageTest, ItsNumbersAreTheReports) {
  for (const int32_t mistakes : {0, 5, 40}) {
    const CheckReport report = CheckSample(Station(mistakes));
    const DayReport& day = report.days[0];
    const std::string html = HtmlReport(report);
    const PageTree page = ParsePage(html);
    EXPECT_EQ(mistakes > 0, !day.mismatches.empty());
    EXPECT_EQ(ResultRows(day), MismatchRows(page, day));
    EXPECT_EQ(day.mismatches.size(), FlaggedMismatches(page));
    EXPECT_EQ(day.mismatches.size(), page.OfClass("adverts").size());
    const std::string words = page.OfClass("verdict").at(0).text;
    if (mistakes == 0) {
      EXPECT_NE(std::string::npos, words.find("There were no problems found"));
    } else {
      EXPECT_NE(std::string::npos, words.find(std::to_string(day.mismatches.size()) +
                                              " ad breaks did not match in all splits"));
    }
    for (const SplitReport& split : day.splits) {
      for (size_t i = 0; i < split.silentAdverts.size(); ++i) {
        const auto cells = TextsOf(page.Inside(SilentId(day, split, i)), "td");
        ASSERT_EQ(5U, cells.size());
        EXPECT_EQ(split.silentAdverts[i].time, cells[0]);
        EXPECT_EQ(std::to_string(split.silentAdverts[i].cart), cells[1]);
        EXPECT_EQ(split.silentAdverts[i].description, cells[2]);
        EXPECT_EQ(std::to_string(split.silentAdverts[i].row), cells[4]);
      }
    }
    ExpectNothingRuns(page, html);
    ExpectLinksLead(page);
    CloseStation();
    ResetGlobals();
  }
}

TEST_F(DayPageTest, TheAdvertsOfAMismatchStandSideBySideWithTheirSums) {
  SampleStation station = Station(0);
  station.mistakes.reset();
  const CheckReport report = CheckSample(station);
  const DayReport& day = report.days[0];
  ASSERT_EQ(5U, day.mismatches.size());
  const PageTree page = ParsePage(HtmlReport(report));
  for (size_t i = 0; i < day.mismatches.size(); ++i) {
    const std::vector<std::string> cells = TextsOf(page.Inside(AdvertsId(day, i)), "td");
    size_t found = 0;
    for (size_t n = 0; n < day.splits.size(); ++n) {
      if (!day.adverts[i][n]) continue;
      for (const AdvertReport& advert : *day.adverts[i][n]) {
        const std::string length = advert.audio ? LengthText(advert.length) : "no audio";
        const std::string cell =
            length + advert.description + std::to_string(advert.cart) + " " + advert.reference;
        found += static_cast<size_t>(std::count(cells.begin(), cells.end(), cell) > 0);
      }
      const std::string sum = LengthText(day.mismatches[i].Lengths[n].seconds);
      EXPECT_EQ(1, std::count(cells.end() - 5, cells.end(), sum) > 0) << sum;
    }
    size_t adverts = 0;
    for (const auto& split : day.adverts[i]) adverts += split ? split->size() : 0;
    EXPECT_EQ(adverts, found) << "every advert of " << TimeText(day, i);
  }
  // One advert too long, one without audio, set off and nothing else.
  const auto over = page.Inside(AdvertsId(day, 1));
  size_t setOff = 0;
  for (const PageElement& cell : over) {
    if (cell.name == "td" && cell.attributes.count("class") > 0 &&
        cell.attributes.at("class") == "odd") {
      ++setOff;
      EXPECT_TRUE(BeginsWith(cell.text, ":31.48")) << cell.text;
    }
  }
  EXPECT_EQ(1U, setOff);
  EXPECT_EQ(1U, page.OfClass("silent").size());
  EXPECT_EQ("#" + SilentId(day, day.splits[3], 0), page.OfClass("silent")[0].attributes.at("href"));
}

TEST_F(DayPageTest, ADayStandsInThePictureBreakByBreak) {
  SampleStation station = Station(0);
  station.mistakes.reset();
  const CheckReport report = CheckSample(station);
  const PageTree page = ParsePage(HtmlReport(report));
  std::vector<PageElement> lanes;
  for (const PageElement& element : page.OfClass("blocks")) {
    if (element.attributes.count("fill") > 0) lanes.push_back(element);
  }
  ASSERT_EQ(5U, lanes.size());
  for (size_t i = 0; i < lanes.size(); ++i) {
    const std::string path = lanes[i].attributes.at("d");
    EXPECT_EQ(report.days[0].splits[i].breaks, std::count(path.begin(), path.end(), 'M'));
    const BreakReport& first = report.days[0].splits[i].breakList[0];
    ASSERT_TRUE(first.length.has_value());
    EXPECT_TRUE(BeginsWith(path, "M" + Units(XOf(60)) + " ")) << path;
    EXPECT_NE(std::string::npos, path.find("h" + Units(WidthOf(*first.length)) + "v"));
  }
  // The break that is missing, and the one that is a minute late; where most have none the gaps are
  // quiet.
  EXPECT_EQ(4U, page.OfClass("mark").size());
  EXPECT_EQ(2U, page.OfClass("cross").size());
  // One mark is for two rows.
  EXPECT_EQ(5U, FlaggedMismatches(page));
  EXPECT_EQ("#" + RowId(report.days[0], 0), page.OfClass("mark")[0].attributes.at("href"));
  EXPECT_TRUE(BeginsWith(page.OfClass("mark")[0].attributes.at("aria-label"),
                         "04:01 does not match: Larkfield Not Found, Easton 1:50.00, "));
}

TEST_F(DayPageTest, ManyDaysHaveASummaryThatLeadsToThem) {
  SampleStation station = Station(3);
  station.days = 4;
  station.missingDays = 1;
  const CheckReport report = CheckSample(station);
  const std::string html = HtmlReport(report);
  const PageTree page = ParsePage(html);
  ExpectLinksLead(page);
  ExpectNothingRuns(page, html);
  size_t sections = 0;
  for (const PageElement& section : page.OfClass("day")) sections += section.name == "section";
  EXPECT_EQ(4U, sections);
  for (const DayReport& day : report.days) {
    EXPECT_TRUE(page.Has(DayId(day)));
    const std::vector<std::string> targets = page.Values("href");
    EXPECT_EQ(1, std::count(targets.begin(), targets.end(), "#" + DayId(day)));
  }
  EXPECT_EQ(2U, page.OfClass("no-log").size()) << "in the summary and in its place";
  EXPECT_EQ(3U, page.OfClass("day-picture").size());
}

TEST_F(DayPageTest, ADayThatWasNotCheckedSaysWhyAndShowsNoPicture) {
  CheckReport report;
  report.station = "Larkfield";
  DayReport troubled;
  troubled.day = kDay;
  troubled.trouble = "cart 7 can't be read";
  DayReport early = troubled;
  early.noLogYet = true;
  early.trouble = "no active split has a log";
  const struct {
    const DayReport& day;
    const char* className;
    const char* words;
  } cases[] = {{troubled, "trouble", "Not checked"}, {early, "no-log", "No log yet"}};
  for (const auto& one : cases) {
    report.days = {one.day};
    const std::string html = HtmlReport(report);
    const PageTree page = ParsePage(html);
    ExpectNothingRuns(page, html);
    ExpectLinksLead(page);
    EXPECT_EQ(1U, page.OfClass(one.className).size());
    EXPECT_NE(std::string::npos, page.OfClass("verdict").at(0).text.find(one.words));
    EXPECT_NE(std::string::npos, page.OfClass("reason").at(0).text.find(one.day.trouble));
    EXPECT_EQ(0U, page.Named("svg").size());
  }
}

TEST_F(DayPageTest, ADayThatBeginsAtMidnightEverywhereSaysThatNothingWasCompared) {
  OpenStore(600);
  PutCart(7, 20);
  gGeneralSettings.NumberActiveSplits = 2;
  for (const int16_t split : {1, 2}) {
    WriteLog(split, kDay, "00:00:00|LRK  00000007 A\r\n\r\n10:30:00|LRK  00000007 A\r\n\r\n ");
  }
  CheckReport report;
  report.days = {CheckDay(kDay)};
  ASSERT_EQ(1U, report.days[0].mismatches.size());
  const PageTree page = ParsePage(HtmlReport(report));
  ExpectLinksLead(page);
  EXPECT_NE(std::string::npos,
            page.OfClass("verdict").at(0).text.find("Not compared: every split begins at 00:00"));
  EXPECT_EQ("--:--", MismatchRows(page, report.days[0]).at(0).at(0));
  EXPECT_EQ(0U, page.OfClass("mark").size()) << "it has no place in the day";
  EXPECT_EQ(3U, page.OfClass("passed").size()) << "two lanes, and the legend";
}

TEST_F(DayPageTest, AcceptedKindsAreSaidAndColourNothing) {
  CheckReport report = CheckSample(Station(3, {1, 60, 5}));
  ASSERT_TRUE(report.days[0].mismatches.empty());
  EXPECT_EQ(PageState::kSee, VerdictOf(report.days[0], {}).state);
  report.accepted = {WarningKind::kSilent};
  EXPECT_EQ(PageState::kMatch, VerdictOf(report.days[0], report.accepted).state);
  const PageTree page = ParsePage(HtmlReport(report));
  EXPECT_NE(std::string::npos, page.OfClass("warnings").at(0).text.find("(accepted)"));
}

TEST_F(DayPageTest, NobodyWritesIntoIt) {
  std::string bytes;
  for (int c = 0; c < 256; ++c) bytes += static_cast<char>(c);
  const std::string hostile[] = {
      "</title><script>alert(1)</script>",
      "\"><img src=x onerror=alert(1)>",
      "' onfocus='alert(1)' autofocus='",
      "<!-- --><![CDATA[ ]]></style></svg>",
      "&lt;b&gt;&amp;&#60;",
      bytes,
      std::string(5000, 'W'),
      std::string(5000, '<'),
      "",
  };
  for (const std::string& text : hostile) {
    const std::string html = HtmlReport(ReportWithTexts([&] { return text; }));
    const PageTree page = ParsePage(html);
    ExpectNothingRuns(page, html);
    ExpectLinksLead(page);
    const std::string twin = Harmless(text);
    EXPECT_TRUE(
        DifferInTextAlone(page, ParsePage(HtmlReport(ReportWithTexts([&] { return twin; })))))
        << text;
    if (text.size() == 5000) {
      EXPECT_NE(std::string::npos, html.find(HtmlText(ToUtf8(text)))) << "whole, once opened";
    }
  }
}

TEST_F(DayPageTest, AHeavyDayMakesAPageThatOpens) {
  constexpr size_t kMost = size_t{5} * 1024 * 1024;
  const CheckReport report = CheckSample(Station(400, {10, 1440, 8}));
  const std::string html = HtmlReport(report);
  EXPECT_LT(html.size(), kMost);
  const PageTree page = ParsePage(html);
  const DayReport& day = report.days[0];
  EXPECT_EQ(ResultRows(day), MismatchRows(page, day)) << "every row is there";
  EXPECT_EQ(day.mismatches.size(), FlaggedMismatches(page));
  EXPECT_GT(60U, page.OfClass("mark").size()) << "so many as can be told apart";
  ExpectLinksLead(page);
}

TEST_F(DayPageTest, WhereNothingMatchesAndNothingHasAudioThePageStillOpens) {
  constexpr size_t kMost = size_t{5} * 1024 * 1024;
  CheckReport report = CheckSample(Station(0, {10, 1440, 8}));
  DayReport& day = report.days[0];
  const std::vector<AdvertReport> adverts(8, {1, 3950, std::string(30, 'X'), "LR-1", 0, false});
  for (int32_t minute = 1; minute <= 1440; ++minute) {
    BreakMismatch mismatch{minute * 60.0F, {}};
    ListItem row;
    row.text = "10:30";
    for (size_t i = 0; i < day.splits.size(); ++i) {
      mismatch.Lengths.push_back({true, static_cast<float>(i)});
      row.ListSubItems.push_back({"  :01.00"});
    }
    day.mismatches.push_back(mismatch);
    day.results.ListItems.push_back(row);
    day.adverts.emplace_back(day.splits.size(), adverts);
  }
  for (SplitReport& split : day.splits) {
    split.silentAdverts.assign(11520, {1, "10:30", 3950, std::string(30, 'X'), "LR-1", "1"});
    for (size_t i = 0; i < split.breakList.size(); ++i) {
      split.breakList[i].silentAdverts = 8;
      split.breakList[i].firstSilentAdvert = static_cast<int32_t>(8 * i);
    }
  }
  const std::string html = HtmlReport(report);
  EXPECT_LT(html.size(), kMost);
  const PageTree page = ParsePage(html);
  ExpectLinksLead(page);
  ExpectNothingRuns(page, html);
  EXPECT_EQ(1440U, MismatchRows(page, day).size());
  EXPECT_NE(std::string::npos, html.find("the JSON report has all"));
}

}  // namespace
}  // namespace logchecker
