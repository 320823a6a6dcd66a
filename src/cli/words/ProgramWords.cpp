#include "cli/words/ProgramWords.h"

#include "lib/text/CodePage.h"

#include <algorithm>

namespace {

constexpr std::uint32_t kTelescopeVerbs =
    kReport | kRays | kDraw | kSaveVerb | kExport | kValues | kSweep | kCheck | kFigureVerb | kSheetsVerb;
constexpr std::uint32_t kAllVerbs = kTelescopeVerbs | kImport | kCalc | kCompare | kRescue;
constexpr std::uint32_t kTableVerbs = kReport | kValues | kSweep | kCompare | kCheck | kFigureVerb |
                                      kRescue; ///< those that print tables in several forms

constexpr VerbWords kVerbs[] = {
    {"report",
     kReport,
     "[TELESCOPE] [--page PAGE]... [--details] [-o OUT.pdf [--paper PAPER]]",
     "",
     {"Prints the pages of results as the workbench shows them; into a PDF, it lays them out on paper.",
      "Gibt die Ergebnisseiten aus, wie die Werkbank sie zeigt; in eine PDF-Datei gibt es sie als Papier "
      "aus."}},
    {"sheets",
     kSheetsVerb,
     "[TELESCOPE] [--sheet SHEET]... [--paper PAPER] [--zones N] [--centre PERCENT] -o OUT.pdf",
     "",
     {"Lays workshop sheets out in true scale, to be printed at 100 %.",
      "Gibt Werkstattblätter im Maßstab 1:1 aus, zum Drucken mit 100 %."_cp1252}},
    {"rays",
     kRays,
     "[TELESCOPE] --mode parallel|focal|pointer --pointer X,Y [--hide-lost] [--no-offset]",
     "",
     {"Prints each piece of each ray as four numbers and hit or lost.",
      "Gibt jedes Stück jedes Strahls als vier Zahlen und hit oder lost aus."_cp1252}},
    {"draw",
     kDraw,
     "[TELESCOPE] --picture PICTURE --size WxH -o OUT.png|.svg|.pdf",
     "",
     {"Paints a picture into a file.", "Malt ein Bild in eine Datei."}},
    {"save",
     kSaveVerb,
     "[TELESCOPE] [-o FILE]",
     "",
     {"Writes the design file.", "Schreibt die Entwurfsdatei."}},
    {"import",
     kImport,
     "OLD [-o FILE]",
     "",
     {"Reads a file of the old format and writes the design file.",
      "Liest eine Datei des alten Formats und schreibt die Entwurfsdatei."}},
    {"export",
     kExport,
     "oslo|fta [TELESCOPE] [-o OUT]",
     "oslo|fta",
     {"Writes the lens file or the mirror file for another program.",
      "Schreibt die Linsen- oder die Spiegeldatei für ein anderes Programm."_cp1252}},
    {"values",
     kValues,
     "[TELESCOPE] [--only NAME]...",
     "",
     {"Prints every number of the design, or each NAME, with its unit.",
      "Gibt jede Zahl des Entwurfs, oder jede genannte, mit ihrer Einheit aus."}},
    {"check",
     kCheck,
     "[TELESCOPE]",
     "",
     {"Tells what is wrong with the design and what to do.",
      "Sagt, was mit dem Entwurf nicht stimmt und was zu tun ist."}},
    {"compare",
     kCompare,
     "FILE FILE",
     "",
     {"Tells what differs between two designs.", "Sagt, worin sich zwei Entwürfe unterscheiden."_cp1252}},
    {"sweep",
     kSweep,
     "[TELESCOPE] --vary KEY=FROM:TO:COUNT... [--show NAME]... [--jobs N]",
     "",
     {"Prints a table of designs: one to four --vary, the first running slowest.",
      "Gibt eine Tabelle von Entwürfen aus: ein bis vier --vary, das erste läuft am langsamsten."_cp1252}},
    {"calc",
     kCalc,
     "[EXPRESSION]...",
     "",
     {"Answers each expression, or each line of standard input, with one line.",
      "Beantwortet jeden Ausdruck, oder jede Zeile der Standardeingabe, mit einer Zeile."}},
    {"figure",
     kFigureVerb,
     "[TELESCOPE] --readings FILE [--source moving|fixed] [--conic K] [--wavelength NM]",
     "",
     {"Makes the mirror's wavefront of the readings of a knife edge.",
      "Macht aus den Ablesungen einer Messerschneide die Wellenfront des Spiegels."}},
    {"rescue",
     kRescue,
     "[NUMBER] [-o FILE]",
     "",
     {"Lists the copies of designs that were left unsaved, newest first; with a NUMBER it writes that copy.",
      "Zählt die Kopien ungesicherter Entwürfe auf, die neueste zuerst; mit einer Nummer schreibt es diese Kopie."_cp1252}},
};

constexpr std::string_view kPages =
    "summary|primary|secondary|tube|focuser|cell|eyepieces|balance|foucault|ronchi|"
    "star|marks|field|illumination";
constexpr std::string_view kPictures = "section|summary|tube-panel|mirror-panel|field|ronchi|polygon|sector|"
                                       "illumination|secondary-choice|wavefront";

constexpr OptionWords kOptions[] = {
    {"--help", "", kAllVerbs, {"Prints this help and ends.", "Gibt diese Hilfe aus und endet."}, ""},
    {"--version", "", kAllVerbs, {"Prints the version and ends.", "Gibt die Version aus und endet."}, ""},
    {"--language",
     "en|de",
     kAllVerbs,
     {"The language of texts; en when not given.", "Die Sprache der Texte; ohne Angabe en."},
     "en|de"},
    {"-o",
     "FILE",
     kAllVerbs,
     {"Where the output goes; a file appears whole or not at all. - is standard output.",
      "Wohin die Ausgabe geht; eine Datei erscheint ganz oder gar nicht. - ist die Standardausgabe."},
     ""},
    {"--format",
     "text|csv|json",
     kTableVerbs,
     {"The form of a table; text when not given.", "Die Form einer Tabelle; ohne Angabe text."},
     "text|csv|json"},
    {"--diameter",
     "MM",
     kTelescopeVerbs,
     {"The aperture of the telescope, or the size of what a calculator draws.",
      "Die Öffnung des Teleskops, oder die Größe dessen, was ein Rechner zeichnet."_cp1252},
     ""},
    {"--focal-length",
     "MM",
     kTelescopeVerbs,
     {"The focal length of the telescope.", "Die Brennweite des Teleskops."},
     ""},
    {"--title", "TEXT", kTelescopeVerbs, {"The title of the telescope.", "Der Titel des Teleskops."}, ""},
    {"--set",
     "KEY=VALUE",
     kTelescopeVerbs,
     {"Sets a number of the design file, such as mirror/thickness=25; the VALUE unset leaves it open.",
      "Setzt eine Zahl der Entwurfsdatei, etwa mirror/thickness=25; der Wert unset lässt sie offen."_cp1252},
     ""},
    {"--page",
     "PAGE",
     kReport,
     {"A page of the report; without this option all of these but the last.",
      "Eine Seite des Berichts; ohne diese Option alle von diesen, nur die letzte nicht."},
     kPages},
    {"--details",
     "",
     kReport,
     {"Lists what the check box Show Details shows, too.",
      "Nennt auch, was das Kästchen Details anzeigen zeigt."_cp1252},
     ""},
    {"--sheet",
     "SHEET",
     kSheetsVerb,
     {"A workshop sheet; without this option all of these.",
      "Ein Werkstattblatt; ohne diese Option alle von diesen."_cp1252},
     "couder-mask|everest|secondary|marks|tube"},
    {"--paper",
     "PAPER",
     kReport | kSheetsVerb,
     {"The paper; A4 when not given.", "Das Papier; ohne Angabe A4."},
     "A4|A3|Letter|Tabloid"},
    {"--zones",
     "N",
     kReport | kSheetsVerb,
     {"The wanted number of zones.", "Die gewünschte Anzahl Zonen."_cp1252},
     ""},
    {"--centre",
     "PERCENT",
     kReport | kSheetsVerb,
     {"The share of the area in the centre that no zone covers.",
      "Der Anteil der Fläche in der Mitte, den keine Zone bedeckt."_cp1252},
     ""},
    {"--edge",
     "MM",
     kReport,
     {"The width of the rim that no zone covers.", "Die Breite des Randes, den keine Zone bedeckt."},
     ""},
    {"--template",
     "couder|everest",
     kReport,
     {"Couder mask or Everest pinstick.", "Couder-Maske oder Everest-Stab."},
     "couder|everest"},
    {"--method",
     "carlin|couder|texereau",
     kReport,
     {"By whom the centre of a zone is computed.", "Nach wem die Mitte einer Zone berechnet wird."},
     "carlin|couder|texereau"},
    {"--source",
     "moving|fixed",
     kReport | kFigureVerb | kDraw,
     {"Whether the light source moves with the knife.", "Ob die Lichtquelle mit der Schneide wandert."},
     "moving|fixed"},
    {"--readings",
     "FILE",
     kFigureVerb | kDraw,
     {"Readings of the knife edge: a zone a line, its radius in mm and one or more readings in mm.",
      "Ablesungen der Messerschneide: je Zeile eine Zone, ihr Radius in mm und eine oder mehr Ablesungen in "
      "mm."},
     ""},
    {"--conic",
     "K",
     kFigureVerb | kDraw,
     {"The conic constant that the mirror is to have; -1 when not given.",
      "Die konische Konstante, die der Spiegel haben soll; ohne Angabe -1."},
     ""},
    {"--wavelength",
     "NM",
     kFigureVerb | kDraw,
     {"The wavelength of the light; 550 when not given.",
      "Die Wellenlänge des Lichts; ohne Angabe 550."_cp1252},
     ""},
    {"--only", "NAME", kValues, {"A number that is printed.", "Eine Zahl, die ausgegeben wird."}, ""},
    {"--vary",
     "KEY=FROM:TO:COUNT",
     kSweep,
     {"A number of the design file that takes COUNT values between two ends.",
      "Eine Zahl der Entwurfsdatei, die COUNT Werte zwischen zwei Enden annimmt."},
     ""},
    {"--show", "NAME", kSweep, {"A number of each design.", "Eine Zahl jedes Entwurfs."}, ""},
    {"--jobs",
     "N",
     kSweep,
     {"How many cores compute; all of them when not given.", "Wie viele Kerne rechnen; ohne Angabe alle."},
     ""},
    {"--mode",
     "parallel|focal|pointer",
     kRays | kDraw,
     {"Rays from a star, from the focal plane or from the pointer.",
      "Strahlen von einem Stern, aus der Brennebene oder vom Zeiger."},
     "parallel|focal|pointer"},
    {"--pointer",
     "X,Y",
     kRays | kDraw,
     {"The pointer's place in the cross-section, in mm.", "Der Ort des Zeigers im Schnittbild, in mm."},
     ""},
    {"--hide-lost",
     "",
     kRays,
     {"Leaves rays out that miss the focal plane.",
      "Lässt Strahlen weg, die die Brennebene verfehlen."_cp1252},
     ""},
    {"--no-offset",
     "",
     kRays | kDraw,
     {"Puts the secondary on the axis.", "Setzt den Fangspiegel auf die Achse."},
     ""},
    {"--picture", "PICTURE", kDraw, {"What is painted.", "Was gemalt wird."}, kPictures},
    {"--size",
     "WxH",
     kDraw,
     {"Width and height of the picture in pixels.", "Breite und Höhe des Bildes in Pixeln."_cp1252},
     ""},
    {"--zoom",
     "1..5",
     kDraw,
     {"Of section: how many times it is enlarged.", "Zu section: die Vergrößerung."_cp1252},
     "1|2|3|4|5"},
    {"--scroll",
     "X,Y",
     kDraw,
     {"Of section: which part of an enlarged one is seen.",
      "Zu section: welcher Teil eines vergrößerten zu sehen ist."_cp1252},
     ""},
    {"--extended",
     "",
     kDraw,
     {"Of section: with the drawtube moved out.", "Zu section: mit ausgefahrenem Auszug."},
     ""},
    {"--box-and-cage",
     "",
     kDraw,
     {"Of section: with mirror box and upper cage.", "Zu section: mit Spiegelkiste und Hut."},
     ""},
    {"--seed",
     "N",
     kDraw,
     {"Of ronchi: what the dots are thrown by.", "Zu ronchi: wonach die Punkte geworfen werden."},
     ""},
    {"--type",
     "I",
     kDraw,
     {"Of polygon and sector: the entry of the calculator's list, counted from 0.",
      "Zu polygon und sector: der Eintrag in der Liste des Rechners, von 0 an gezählt."_cp1252},
     ""},
    {"--thickness",
     "MM",
     kDraw,
     {"Of polygon: the thickness of the boards.", "Zu polygon: die Stärke der Bretter."_cp1252},
     ""},
    {"--value",
     "V",
     kDraw,
     {"Of sector: the value that the entry asks for.", "Zu sector: der Wert, nach dem der Eintrag fragt."},
     ""},
};

constexpr Passage kCompanionPassages[] = {
    {{"TELESCOPE", "TELESKOP"},
     {"TELESCOPE is a design FILE (- is standard input), or the telescope of the quick New dialog with any "
      "of "
      "--diameter, --focal-length and --title; then --set, any number of times.",
      "TELESCOPE ist eine Entwurfsdatei (- ist die Standardeingabe), oder das Teleskop des schnellen Dialogs "
      "Neu "
      "mit --diameter, --focal-length und --title nach Wahl; dann --set, so oft man mag."_cp1252}},
    {{"FILES", "DATEIEN"},
     {"eyepiece.dat in the current directory, else orreva/eyepiece.dat in the user's or the system's data "
      "folder "
      "(~/.local/share, /usr/share): the list behind the page eyepieces.",
      "eyepiece.dat im aktuellen Ordner, sonst orreva/eyepiece.dat im Datenordner des Benutzers oder des "
      "Systems "
      "(~/.local/share, /usr/share): die Liste der Seite eyepieces."}},
    {{"EXIT STATUS", "RÜCKGABEWERT"_cp1252},
     {"0 done, 1 a file or an expression failed, 2 the command line is not understood, 3 check found errors "
      "or "
      "warnings.",
      "0 getan, 1 eine Datei oder ein Ausdruck scheiterte, 2 die Befehlszeile ist nicht zu verstehen, 3 "
      "check fand "
      "Fehler oder Warnungen."}},
};

constexpr OptionWords kWorkbenchOptions[] = {kOptions[0], kOptions[1]};

constexpr Passage kWorkbenchPassages[] = {
    {{"FILES", "DATEIEN"},
     {"eyepiece.dat in the current directory, else orreva/eyepiece.dat in the user's or the system's data "
      "folder "
      "(~/.local/share, /usr/share): the user's list of eyepieces.\n\n"
      "~/.config/VarnholtTelescope.conf: the language.\n\n"
      "~/.local/state/orreva/rescue: copies of designs that were not saved.",
      "eyepiece.dat im aktuellen Ordner, sonst orreva/eyepiece.dat im Datenordner des Benutzers oder des "
      "Systems "
      "(~/.local/share, /usr/share): die Okularliste.\n\n"
      "~/.config/VarnholtTelescope.conf: die Sprache.\n\n"
      "~/.local/state/orreva/rescue: Kopien von Entwürfen, die nicht gesichert wurden."_cp1252}},
};

constexpr ProgramWords kWorkbench{
    "orreva",
    {"design workbench for Newtonian telescopes", "Werkbank für den Entwurf von Newton-Teleskopen"_cp1252},
    "[FILE]",
    {"Describe one telescope, or only its mirror, and the workbench proposes every number that it is not "
     "given, "
     "draws the cross-section with rays that follow the mouse, and helps to test the mirror. A FILE is "
     "opened by "
     "its content, as a design or as the old format. F1 opens the manual.",
     "Sie beschreiben ein Teleskop, oder nur seinen Spiegel; die Werkbank schlägt jede Zahl vor, die Sie "
     "nicht "
     "angeben, zeichnet den Schnitt mit Strahlen, die der Maus folgen, und hilft beim Prüfen des Spiegels. "
     "Eine "
     "Datei wird nach ihrem Inhalt geöffnet, als Entwurf oder als altes Format. F1 öffnet das Handbuch."_cp1252},
    {},
    kWorkbenchOptions,
    kWorkbenchPassages,
    "orreva-cli"};

constexpr ProgramWords kCompanion{
    "orreva-cli",
    {"the Orreva workbench without a window", "die Werkbank Orreva ohne Fenster"},
    "VERB [WORD]...",
    {"Every number, text, picture and file of the workbench, from a shell. Text goes in and out as UTF-8. "
     "Options may "
     "stand before or behind the other words.",
     "Jede Zahl, jeder Text, jedes Bild und jede Datei der Werkbank, aus einer Shell. Text geht als UTF-8 "
     "hinein und "
     "hinaus. Optionen dürfen vor und hinter den anderen Wörtern stehen."_cp1252},
    kVerbs,
    kOptions,
    kCompanionPassages,
    "orreva"};

std::vector<std::string_view> PartsOf(std::string_view text, std::string_view separator)
{
    std::vector<std::string_view> parts;
    while (!text.empty()) {
        const std::size_t end = text.find(separator);
        parts.push_back(text.substr(0, end));
        text.remove_prefix(end == std::string_view::npos ? text.size() : end + separator.size());
    }
    return parts;
}

} // namespace

const ProgramWords& WorkbenchWords() { return kWorkbench; }

const ProgramWords& CompanionWords() { return kCompanion; }

const VerbWords* FindVerbWords(std::string_view name)
{
    const auto found = std::ranges::find(kVerbs, name, &VerbWords::name);
    return found == std::end(kVerbs) ? nullptr : found;
}

const OptionWords* FindOptionWords(std::string_view name)
{
    const auto found = std::ranges::find(kOptions, name, &OptionWords::name);
    return found == std::end(kOptions) ? nullptr : found;
}

std::vector<std::string_view> ChoicesOf(std::string_view choices) { return PartsOf(choices, "|"); }

std::vector<std::string_view> ParagraphsOf(std::string_view text) { return PartsOf(text, "\n\n"); }

std::string OptionSentence(const OptionWords& option, int language)
{
    std::string sentence = option.text.In(language);
    const std::vector<std::string_view> choices = ChoicesOf(option.choices);
    if (choices.empty() || option.value.starts_with(choices.front())) {
        return sentence;
    }
    sentence.back() = ':'; // the full stop comes behind the choices
    for (const std::string_view choice : choices) {
        sentence += ' ';
        sentence += choice;
        sentence += ',';
    }
    sentence.back() = '.';
    return sentence;
}
