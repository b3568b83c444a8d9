# The tables of the source, which say what the forms hold.
import re


class Source:
    """Which label names which field, in which order Tab goes, and what the pick lists offer."""

    def __init__(self, folder):
        def read(file):
            return open(f"{folder}/{file}", encoding="utf-8").read()

        controls = read("screen/controls.h")
        self.captions = {}
        for control, caption in re.findall(r'\{ \*this, "(\w+)",\s+"((?:[^"\\]|\\.)*)"', controls):
            self.captions[control] = " ".join(caption.replace('\\"', '"').replace("&", "").split())
        self.tabs = {}
        for control, tab in re.findall(r'forms::TextBox +(\w+) +\{ \*this, "[^"]+", +\{ *(\d+)', controls):
            self.tabs[control] = int(tab)
        self.pages = [self.page(read("screen/record_boxes.h"), page) for page in ("PageOne", "PageTwo")]
        codes = read("store/film_codes.h")
        self.discs = words(codes, "DiscModes")
        self.ratings = words(codes, "RatingCodes")
        formats = re.search(r"List3\.Add\(\{(.*)\}\)", read("screen/format_list.cpp")).group(1)
        self.formats = [words(codes, format)[0] for format in re.findall(r"store::(\w+)", formats)]

    def page(self, boxes, page):
        rows = boxes.split(f"{page}[] = {{")[1].split("};")[0]
        pairs = re.findall(r"&PageControls::(\w+), +&PageControls::(\w+)", rows)
        pairs.sort(key=lambda pair: self.tabs[pair[0]])
        return [(box, self.captions[tag]) for box, tag in pairs]


def words(codes, table):
    rows = re.search(rf" {table} += (.*?);", codes, re.DOTALL).group(1)
    return re.findall(r'"([^"]*)"', rows)
