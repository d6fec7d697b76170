// JSON reports as logcheck writes them, of stations that are made up.
import { writeFileSync } from 'node:fs';
import path from 'node:path';

const millisecondsOfADay = 86_400_000;

// Days count from here.
export const firstDay = Date.UTC(2027, 0, 15);

export function isoDate(day) {
  return new Date(firstDay + day * millisecondsOfADay).toISOString().slice(0, 10);
}

export function isoTime(date) {
  return `${date.toISOString().slice(0, 19)}Z`;
}

// Breaks that differ, a minute apart from 06:01 on.
function mismatches(count) {
  return Array.from({ length: count }, (_, i) => {
    const minute = 361 + i;
    const time = `${String(Math.floor(minute / 60)).padStart(2, '0')}:${String(minute % 60).padStart(2, '0')}`;
    return {
      seconds: minute * 60,
      time,
      lengths: [{ seconds: 110, text: '1:50.00' }, null],
      adverts: [[], null],
    };
  });
}

// A day of a state: "match", "differs", "see", "trouble" or "no-log". `count` says how many breaks
// differ, or how many adverts have no audio.
export function dayOf(day, state, count = 1, text = 'the store\'s part 2 can\'t be read') {
  const date = isoDate(day);
  if (state === 'trouble' || state === 'no-log') {
    const trouble = state === 'trouble' ? text : `no active split has a log for ${date}`;
    return { date, code: 2, trouble, noLogYet: state === 'no-log', warnings: [] };
  }
  const warnings = Array.from({ length: state === 'see' ? count : 0 }, (_, i) => ({
    kind: 'silent',
    split: 2,
    text: `split 2 "Coast": 1 advert without audio at 16:01: cart ${3950 + i} TARN DAIRIES`,
  }));
  const found = mismatches(state === 'differs' ? count : 0);
  return {
    date,
    code: state === 'match' ? 0 : 1,
    toleranceSeconds: 1.5,
    counts: {
      breaks: 120,
      adverts: 602,
      withoutAudio: warnings.length,
      mismatches: found.length,
      warnings: warnings.length,
    },
    splits: [],
    warnings,
    mismatches: found,
  };
}

export function reportOf(station, days, more = {}) {
  return {
    program: 'logcheck',
    version: '1.1.0',
    schema: 1,
    station,
    settings: `/srv/stations/${station}`,
    checkedAt: isoTime(new Date()),
    code: Math.max(...days.map((day) => day.code)),
    days,
    ...more,
  };
}

// Writes the reports, a file each, and gives their paths.
export function writeReports(folder, reports) {
  return reports.map((report, i) => {
    const file = path.join(folder, `report-${i + 1}.json`);
    writeFileSync(file, JSON.stringify(report, null, 2));
    return file;
  });
}

const towns = [
  'Larkfield', 'Easton', 'Weston', 'Coast', 'Hill Country', 'Northmoor', 'Ashby Vale', 'Tarnside',
  'Saltmarsh', 'Quarry Bank', 'Millbrook', 'Fernhill',
];

// A network's week: most days match, and a few stations have something of everything.
export function network(stations, days) {
  const old = isoTime(new Date(Date.now() - 3 * millisecondsOfADay));
  return Array.from({ length: stations }, (_, i) => {
    const name = stations <= towns.length
      ? `${towns[i]} Radio`
      : `${towns[i % towns.length]} FM ${String(i + 1).padStart(4, '0')}`;
    const stateAt = (day) => {
      const place = (i * 7 + day * 3) % 97;
      if (day >= days - 2 && i % 3 === 0 && days > 2) return dayOf(day, 'no-log');
      if (i % 11 === 4) return dayOf(day, 'differs', 1 + ((day * 5 + i) % 12));
      if (i % 29 === 7 && day < 3) return dayOf(day, 'trouble');
      if (place === 9) return dayOf(day, 'see', 2);
      return place === 21 ? dayOf(day, 'differs', 1) : dayOf(day, 'match');
    };
    const list = [...Array(days).keys()].map(stateAt);
    return reportOf(name, list, i % 37 === 5 ? { checkedAt: old } : {});
  });
}
