// One page that holds everything: style, script, summary and films. The films are lines of text between tabs, which a
// browser takes apart far quicker than a document of 32,000 rows.
#include <array>

#include "exchange/coded_words.h"
#include "exchange/film_text.h"
#include "exchange/formats.h"
#include "exchange/page.h"
#include "exchange/summary.h"
#include "exchange/text_out.h"
#include "runtime/text.h"

namespace exchange {
namespace {

using store::FilmField;

struct Caption {
  FilmField Field;
  std::string_view Text;
  int Page;
};
// As the tags of the record screen, without its hints.
// clang-format off
constexpr std::array<Caption, 32> Captions = {{
  { FilmField::Title,           "Title", 1 },
  { FilmField::Director,        "Director", 1 },
  { FilmField::Star1,           "Star 1", 1 },
  { FilmField::Star2,           "Star 2", 1 },
  { FilmField::Star3,           "Star 3", 1 },
  { FilmField::Star4,           "Star 4", 1 },
  { FilmField::Star5,           "Star 5", 1 },
  { FilmField::Star6,           "Star 6", 1 },
  { FilmField::Label,           "Label", 1 },
  { FilmField::Format,          "Format", 1 },
  { FilmField::NumReel,         "Number discs / tapes", 1 },
  { FilmField::Genre,           "Genre", 1 },
  { FilmField::Time,            "Time (min)", 1 },
  { FilmField::Year,            "Year", 1 },
  { FilmField::CassNo,          "Cassette No.", 1 },
  { FilmField::Letter,          "Aspect", 1 },
  { FilmField::CLV1,            "CAV / CLV", 1 },
  { FilmField::Color1,          "Color B/W", 1 },
  { FilmField::Producer,        "Producer", 2 },
  { FilmField::Cinematographer, "Cinematographer", 2 },
  { FilmField::Written,         "Screen Play By - Writers - Film Editor", 2 },
  { FilmField::Music,           "Music - Director / Composer", 2 },
  { FilmField::Choreography,    "Choreography", 2 },
  { FilmField::SetDirection,    "Art Director / Set Direction", 2 },
  { FilmField::Costume,         "Costume Designer", 2 },
  { FilmField::Sound,           "Sound Recording", 2 },
  { FilmField::Awards,          "Nominations / Awards or Notes", 2 },
  { FilmField::Rating,          "MPAA Rating", 2 },
  { FilmField::Package,         "Packaging", 2 },
  { FilmField::Purchase,        "Purchase Date", 2 },
  { FilmField::Cost,            "Purchase Price", 2 },
  { FilmField::Ratings,         "Your Rating", 2 },
}};
// clang-format on

static_assert(
    [] {
      for (std::size_t row = 0; row < Captions.size(); ++row) {
        if (Captions[row].Field != FilmField(row)) return false;
      }
      return Captions.size() + 1 == store::FilmFields.size();
    }(),
    "every field but the line end, in the order of the record");

std::string Escaped(std::string_view text) {
  std::string html;
  for (char byte : text) {
    if (byte == '<') {
      html += "&lt;";
    } else if (byte == '&') {
      html += "&amp;";
    } else if (byte == '"') {
      html += "&quot;";
    } else {
      html += byte;
    }
  }
  return html;
}

std::string ColourText(std::uint32_t colour) {
  static constexpr std::string_view digits = "0123456789abcdef";
  std::string text = "#";
  for (int shift = 20; shift >= 0; shift -= 4) text += digits[colour >> shift & 0xF];
  return text;
}

std::string ColourRules(const Colours& colours) {
  return "--background: " + ColourText(colours.Background) + "; --box: " + ColourText(colours.Box) +
         "; --text: " + ColourText(colours.Text) + "; --tag: " + ColourText(colours.Tag) + ";";
}

// Buttons that narrow the list. name: the field that the script compares.
std::string ShareSection(std::string_view heading, std::string_view name, const std::vector<Share>& shares) {
  std::int64_t most = 1;
  for (const Share& share : shares) most = std::max(most, share.Films);
  std::string html = "<section><h2>" + std::string(heading) + "</h2>";
  for (const Share& share : shares) {
    html.append("<button type=\"button\" aria-pressed=\"false\" data-name=\"").append(name).append("\" data-value=\"");
    html.append(Escaped(share.Value)).append("\" style=\"--part: ").append(std::to_string(share.Films * 100 / most));
    html.append("%\">")
        .append(Escaped(share.Name))
        .append("<span>")
        .append(Grouped(share.Films))
        .append("</span></button>");
  }
  return html.append("</section>");
}

std::string FieldList() {
  std::string json = "[[\"Record\",\"Record\",0]";
  for (const Caption& caption : Captions) {
    json.append(",[\"").append(store::RowOf(caption.Field).Name).append("\",\"").append(caption.Text);
    json.append("\",").append(std::to_string(caption.Page)).append("]");
  }
  return json + "]";
}

// No text holds a tab or a line end, since these have signs; "<" gets one, so that nothing ends the script.
void AppendFilms(const Films& films, TextOut& out) {
  const std::string less = SignOf('<');
  std::string line;
  films([&](std::int64_t number, const store::FilmRecord& film) {
    line = std::to_string(number);
    for (const Caption& caption : Captions) {
      line += '\t';
      AppendWord(film, caption.Field, line);
    }
    line.resize(line.find_last_not_of('\t') + 1);
    for (std::size_t at = line.find('<'); at != std::string::npos; at = line.find('<', at)) line.replace(at, 1, less);
    out.Text.append(line) += '\n';
    out.Pass();
  });
}

}  // namespace

void WriteHtml(const Collection& collection, const ByteSink& sink) {
  const Summary summary = Summarize(collection.Each);
  TextOut out(sink);
  for (std::string_view rest = PageFrame; !rest.empty();) {
    const std::size_t mark = rest.find("{{");
    out.Text.append(rest.substr(0, mark));
    if (mark == std::string_view::npos) break;
    const std::size_t end = rest.find("}}", mark);
    const std::string_view name = rest.substr(mark + 2, end - mark - 2);
    rest.remove_prefix(end + 2);
    if (name == "colours") out.Text += ColourRules(collection.Look);
    if (name == "style") out.Text += PageStyle;
    if (name == "script") out.Text += PageScript;
    if (name == "when") out.Text += Escaped(collection.When);
    if (name == "headline") out.Text += Headline(summary);
    if (name == "fields") out.Text += FieldList();
    if (name == "films") AppendFilms(collection.Each, out);
    if (name == "summary") {
      out.Text += ShareSection("Format", "Format", summary.Formats);
      out.Text += ShareSection("Genre", "Genre", summary.Genres);
      out.Text += ShareSection("Decade", "Year", summary.Decades);
    }
  }
  out.End();
}

}  // namespace exchange
