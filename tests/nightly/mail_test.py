#!/usr/bin/env python3
"""logcheck-mail: what it mails, to whom and by what, that nothing keeps a letter back, and the two lines for
cron. Takes the folder of the programs."""

import re
import sys

import night

CRONTAB = (night.TEMPLATES / "crontab").read_text(encoding="utf-8")


def mail(home, *arguments, **variables):
    return home.run([home.bin / "logcheck-mail", *arguments], variables)


def body_of(home):
    return home.sent().get_content()


def check_headers(home, station):
    done = mail(home, "--settings", station, LOGCHECK_MAIL_TO="a@station.example, b@station.example")
    assert (done.returncode, done.stdout, done.stderr) == (1, "", ""), done
    letter = home.sent()
    assert letter["To"] == "a@station.example, b@station.example", letter
    assert letter.get_content_type() == "text/plain" and letter.get_content_charset() == "utf-8"
    # Its own letters, and none that make a line of a header.
    done = mail(home, "--settings", station, "--station", "Zürich\nBcc: all@station.example")
    assert done.returncode == 1, done
    assert home.sent()["Subject"].startswith("Log check of Zürich Bcc: all@station.example, "), done
    assert home.sent()["Bcc"] is None
    # It goes to who runs it, where nobody else is named.
    mail(home, "--settings", station)
    assert home.sent()["To"] == home.run(["id", "-un"]).stdout.strip()


def check_days(home, station):
    first, last = (day.isoformat() for day in sorted(home.days))
    done = mail(home, "--settings", station, "--date", first, "--days", "2")
    assert done.returncode == 1, done
    words = f"Log check of {night.STATION}, {first} to {last}: something to mend"
    assert home.sent()["Subject"] == words, home.sent()["Subject"]
    done = mail(home, "--settings", station, "--date", first, "--days", "3")
    assert done.returncode == 2, done
    top = body_of(home).split("\nStation: ")[0]
    assert top.count("no active split has a log for ") == 1, top


def check_mailers(home, station):
    """As mail is called, and as sendmail is where nothing is set."""
    for name in ("mail", "mailx", "bsd-mailx", "s-nail"):
        home.stand_in(name)
        done = mail(home, "--settings", station, LOGCHECK_MAILER=str(home.bin / name),
                    LOGCHECK_MAIL_TO="traffic")
        assert done.returncode == 1, done
        option, subject, address = home.letter.with_suffix(".arguments").read_text().splitlines()
        assert (option, address) == ("-s", "traffic"), (option, address)
        assert home.letter.read_text().startswith(f"{subject} (exit code 1).\n\n"), subject
    done = mail(home, "--settings", station, LOGCHECK_MAILER="")
    assert done.returncode == 1 and home.sent()["Subject"].startswith("Log check of "), done
    assert home.letter.with_suffix(".arguments").read_text() == "-t\n-oi\n"


def check_letter_that_cannot_be_sent(home, station):
    home.program("refuses", "cat >/dev/null; exit 75")
    for mailer in ("refuses", "gone"):
        done = mail(home, "--settings", station, LOGCHECK_MAILER=str(home.bin / mailer))
        assert done.returncode == 2, done
        assert "logcheck-mail: the letter could not be sent:\nLog check of " in done.stderr, done
        assert "5 ad breaks did not match" in done.stderr, done


def check_arguments_that_are_refused(home, station):
    day = max(home.days).isoformat()
    for arguments in (["--station", "Coast", "--date", day], ["--station=Coast", f"--date={day}"]):
        done = mail(home, "--settings", station, *arguments, "--nightly")
        assert done.returncode == 2, done
        assert home.sent()["Subject"] == f"Log check of Coast, {day}: could not be checked"
        assert "--nightly" in body_of(home) and "logcheck printed no report." in body_of(home)
    mail(home, "--station", "Coast\nBcc: all@station.example", "--nightly")
    assert home.sent()["Bcc"] is None and "Coast Bcc: " in home.sent()["Subject"], home.sent()
    done = mail(home, "--nightly")
    subject = home.sent()["Subject"]
    host = home.run(["uname", "-n"]).stdout.strip()
    assert re.fullmatch(rf"Log check of {re.escape(host)}, [\d-]+: could not be checked", subject)


def check_no_check(programs):
    """Whatever becomes of the check, a letter says that there was none."""
    for script, reason in ((None, "logcheck"), ("kill -9 $$", "logcheck ended with exit code 137"),
                           ("exit 3", "logcheck ended with exit code 3"),
                           ("sleep 600", "logcheck was ended: it ran for 1 seconds")):
        with night.Home(programs) as home:
            (home.bin / "logcheck").unlink()
            if script:
                home.program("logcheck", script)
            done = mail(home, "--station", "Coast", LOGCHECK_TIMEOUT="1")
            assert (done.returncode, done.stdout) == (2, ""), done
            assert re.match("Log check of Coast, .*: could not be checked$", home.sent()["Subject"])
            assert reason in body_of(home), body_of(home)


def check_long_lines(programs):
    """Ten logs with long paths are one line of a report, and mail systems refuse a line of 1,000 bytes."""
    with night.Home(programs) as home:
        home.program("logcheck", 'printf "%01000d %01000d\\n" 0 0; printf "%02000d\\n" 0 >&2; exit 2')
        assert mail(home).returncode == 2
        lines = home.letter.read_bytes().splitlines()
        assert max(map(len, lines)) < 998, max(map(len, lines))
        assert b"".join(lines).count(b"0" * 100) == 40, lines


def check_journal(home, station):
    """Where a journal listens it gets the report, whatever the code."""
    done = mail(home, "--settings", station, JOURNAL_STREAM="8:1")
    assert done.returncode == 1 and done.stdout.startswith(f"Station: {night.STATION}\n"), done
    assert body_of(home).endswith(done.stdout)
    night.make_clean(station)
    done = mail(home, "--settings", station, JOURNAL_STREAM="8:1")
    assert done.returncode == 0 and "There were no problems found." in done.stdout, done
    assert home.sent() is None


def check_cron(programs):
    """cron mails what a line prints, so none prints anything."""
    lines = CRONTAB.splitlines()
    assert len(lines) == 2
    name, address = lines[0].split("=", 1)
    command = re.fullmatch(r"\d+ \d+ \* \* \* ([^%]*)", lines[1]).group(1)
    with night.Home(programs) as home:
        station = home.station("larkfield")
        for prepare, code in ((None, 1), (night.make_clean, 0), (night.make_uncheckable, 2)):
            if prepare:
                prepare(station)
            done = home.run(["/bin/sh", "-c", command], {name: address})
            assert (done.returncode, done.stdout, done.stderr) == (code, "", ""), done
            assert (home.sent() is None) == (code == 0), home.sent()
            assert code == 0 or home.sent()["To"] == address, home.sent()


def main():
    with night.Home(sys.argv[1]) as home:
        station = home.station()
        for check in (check_headers, check_days, check_mailers, check_letter_that_cannot_be_sent,
                      check_arguments_that_are_refused, check_journal):
            check(home, station)
            assert not list(home.home.glob("tmp.*")), check
    check_no_check(sys.argv[1])
    check_long_lines(sys.argv[1])
    check_cron(sys.argv[1])
    print("the letters come")


main()
