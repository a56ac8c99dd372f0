#!/usr/bin/env python3
"""Checks the translation files against the English ones: check_texts.py DIRECTORY_OF_TS_FILES

Prints a line for each fault and ends with 1 if there are any. texts/ has fixed-texts.tsv, the two texts
that each language has to the letter, and allowed-english.tsv, the texts that may read like the English. The
words of TERMS come from docs/glossary.tsv.
"""
import csv
import re
import sys
import unicodedata
import xml.etree.ElementTree as ET
from pathlib import Path

HERE = Path(__file__).resolve().parent
GLOSSARY = HERE.parent / "docs" / "glossary.tsv"
CODES = "enu cht chs jpn deu krn fra ita esn ptb rus dan nor sve nld plk hun ptg trk csy".split()
CJK = {"chs", "cht", "jpn", "krn"}
PREPARING, READY = "Quillmere Drive is initializing...", "Quillmere Drive is ready."
FONT_MARKS = ["[DlgTitleFont]", "{\\VerdanaBold13}", "{\\DlgFont8}"]
MARKS = ["%1", "[ProductName]", "\\n", "\\t", "home\\Quillmere", *FONT_MARKS]
# Characters that only one of the two scripts has.
OWN_SET = {"chs": "gb2312", "cht": "big5"}
# Terms of the glossary that every text about them uses unchanged, and names that no text may use.
TERMS = ["verification code"]
BANNED = ["OTP"]
# A remark in brackets has its full stop inside ("One. (Two.)") or after it ("One (two)."), not before and after.
STOP_ON_BOTH_SIDES = re.compile(r"[.。]\s*[(（][^()（）]*[)）]\u200b?[.。]")
NATIVE = {
    "jpn": r"[\u3040-\u30ff\u4e00-\u9fff]", "krn": r"[\uac00-\ud7a3]", "rus": r"[\u0400-\u04ff]",
    "chs": r"[\u4e00-\u9fff]", "cht": r"[\u4e00-\u9fff]",
}


def rows(name):
    lines = (HERE / "texts" / name).read_text(encoding="utf-8").splitlines()
    return [line.split("\t") for line in lines]


def terms():
    """The word of each language for each of TERMS."""
    with GLOSSARY.open(encoding="utf-8", newline="") as file:
        glossary = {row["en"]: row for row in csv.DictReader(file, delimiter="\t", quoting=csv.QUOTE_NONE)}
    return {term: glossary[term] for term in TERMS}


def load(path):
    """Source to translation, in the order of the file, and the faults of the format."""
    texts, faults = {}, []
    root = ET.parse(path).getroot()
    contexts = root.findall("context")
    if "language" in root.attrib:
        faults.append("a language attribute would add sections to the compiled file")
    if [context.findtext("name") for context in contexts] != ["global"]:
        faults.append("the one context must be 'global'")
    for message in root.iter("message"):
        source = message.findtext("source")
        translations = message.findall("translation")
        if message.find("comment") is not None or source in texts:
            faults.append(f"a comment, or twice: {source!r}")
        if len(translations) != 1 or translations[0].attrib or len(translations[0]):
            faults.append(f"not exactly one finished translation: {source!r}")
        texts[source] = translations[0].text or ""
    return texts, faults


def ending(text):
    """The kind of the end of a sentence, for all marks and quotes."""
    text = re.sub(r"\(&[A-Z]\)", "", text).rstrip("\u200b\"”“」»』'’ \u00a0")
    if text.endswith("..."):
        return "..."
    return {"。": ".", "！": "!", "？": "?", "：": ":"}.get(text[-1:], text[-1:] if text[-1:] in ".!?:" else "")


def accelerator_fault(code, source, text):
    wanted = re.findall(r"&(\w)", source)
    if text.count("&") != len(wanted) or len(re.findall(r"&\w", text)) != len(wanted):
        return True
    return bool(wanted) and code in CJK and f"(&{wanted[0].upper()})" not in text


def script_fault(code, text):
    # A text with only names and placeholders has no letters left.
    rest = re.sub(r"\[\w+\]|\{\\\w+\}|&|%1|Quillmere Drive|home\\Quillmere", "", text)
    if code in NATIVE and re.search("[A-Za-z]", rest) and not re.search(NATIVE[code], rest):
        return "no letter of the language's script"
    for char in text if code in OWN_SET else "":
        try:
            if "\u4e00" <= char <= "\u9fff":
                char.encode(OWN_SET[code])
        except UnicodeEncodeError:
            return f"{char} is of the other Chinese script"
    return None


def term_faults(code, source, text, words):
    faults = [f"says {name}" for name in BANNED if name in text]
    for term, word in words.items():
        if term in source.lower() and word[code].lower() not in text.lower():
            faults.append(f"{word[code]!r} is the word for {term!r}")
    return faults


def text_faults(code, source, text, fixed, allowed):
    if not text:
        return ["empty"]
    faults = [f"mark {mark}" for mark in MARKS if source.count(mark) != text.count(mark)]
    faults += [f"{mark} must lead" for mark in FONT_MARKS if mark in source and not text.startswith(mark)]
    if text.replace("%1", "").count("%") or text != text.strip() or "  " in text or "…" in text:
        faults.append("a blank at an end, two blanks, a single ellipsis character or a stray %")
    if accelerator_fault(code, source, text):
        faults.append("accelerator")
    if source not in (PREPARING, READY) and ending(source) != ending(text):
        faults.append(f"ends in {ending(text)!r}, not {ending(source)!r}")
    if STOP_ON_BOTH_SIDES.search(text):
        faults.append("a full stop on both sides of the bracket")
    if len(text) > (1.1 if code in CJK else 1.7) * len(source) + 20:
        faults.append(f"too long for a dialog ({len(source)} to {len(text)})")
    if unicodedata.normalize("NFC", text) != text or re.search("\ufffd|Ã[\u0080-\u00bf]|â€|Ð[\u0080-\u00bf]", text):
        faults.append("mojibake, or not composed")
    if text == source and source != "Quillmere Drive" and code not in allowed.get(source, ()):
        faults.append("left in English")
    elif text != source and script_fault(code, text):
        faults.append(script_fault(code, text))
    wanted = {PREPARING: fixed[code][0], READY: fixed[code][1], "Quillmere Drive": "Quillmere Drive"}
    if wanted.get(source, text) != text:
        faults.append(f"must read {wanted[source]!r}")
    return faults


def main(directory):
    words = terms()
    fixed = {code: (preparing, ready) for code, preparing, ready in rows("fixed-texts.tsv")}
    allowed = {text: codes.split() for text, codes, reason in rows("allowed-english.tsv")[1:] if reason}
    files = {path.stem: path for path in sorted(Path(directory).glob("*.ts"))}
    faults = [] if sorted(files) == sorted(CODES) else [f"files: {' '.join(sorted(files))}"]
    english = load(files["enu"])[0]
    if len(english) != 476 or any(source != text for source, text in english.items()):
        faults.append("enu: not 476 texts that repeat their source")
    faults += [f"enu: says {name}: {text!r}" for text in english for name in BANNED if name in text]
    for code, path in files.items():
        texts, form = load(path)
        faults += [f"{code}: {fault}" for fault in form]
        if set(texts) != set(english):
            faults.append(f"{code}: other sources: {sorted(set(texts) ^ set(english))}")
        for source, text in texts.items() if code != "enu" else ():
            found = text_faults(code, source, text, fixed, allowed) + term_faults(code, source, text, words)
            faults += [f"{code}: {fault}: {source!r} -> {text!r}" for fault in found]
    print("\n".join(faults) or f"{len(files)} languages, {len(english)} texts each: no fault")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1]))
