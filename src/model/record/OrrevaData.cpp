#include "model/record/OrrevaData.h"

#include "lib/files/FileQueries.h"
#include "lib/text/Assertion.h"
#include "lib/text/CodePage.h"
#include "lib/text/Language.h"
#include "lib/text/Log.h"
#include "lib/text/LogSink.h"
#include "lib/text/Numbers.h"

#include <cstring>

namespace {

constexpr const char* kDefaultPath = "noname.orreva.xml";
constexpr Bilingual kSavePrompt{"Save %s?",
                                "Die Daten wurden verändert.\nSoll die Datei %s gesichert werden?"_cp1252};

/// A line of the log, made only where somebody takes it: a sweep reads millions of defaults.
template <class... Values>
void LogFormatted(const char* format, Values... values)
{
    if (HasLogSink()) {
        LibString line;
        line.Format(format, values...);
        LogText(line);
    }
}

/// A wait cursor for as long as it lives.
class Wait {
public:
    explicit Wait(RecordHost* recordHost) : m_host(recordHost)
    {
        if (m_host != nullptr) {
            m_host->BeginWait();
        }
    }
    ~Wait()
    {
        if (m_host != nullptr) {
            m_host->EndWait();
        }
    }
    Wait(const Wait&) = delete;
    Wait& operator=(const Wait&) = delete;

private:
    RecordHost* m_host;
};

} // namespace

COrrevaData::COrrevaData(RecordHost* recordHost, RecordFiles* recordFiles)
    : m_host(recordHost), m_files(recordFiles)
{
    Clear();
}

void COrrevaData::Reset()
{
    if (modified != 0) {
        LibString prompt;
        prompt.Format(kSavePrompt.In(g_nLanguage), Cp1252FromUtf8(file_path.GetText()).c_str());
        const bool wanted = m_host != nullptr && m_host->AskYesNo(prompt);
        const bool saved = wanted && Save() == 0;
        if (!saved && m_files != nullptr) {
            m_files->NotSaved(*this, wanted);
        }
    }
    modified = 0;
    file_path = kDefaultPath;
    static_cast<TelescopeFields&>(*this) = {};
    title = "Neues Teleskop";
    description = "Ein 08/15 Teleskop";
    SetTitleOfDocument();
}

void COrrevaData::Clear()
{
    modified = 0;
    Reset();
    file_path.Empty();
    SetTitleOfDocument();
}

void COrrevaData::ResetCaches()
{
    focuser_total_height = HUGE_VAL;
    focal_plane_height = HUGE_VAL;
    secondary_to_focus = HUGE_VAL;
    secondary_offset = HUGE_VAL;
}

bool COrrevaData::HasFile() const { return *file_path.GetText() != 0; }

void COrrevaData::TellStored(void (COrrevaData::*set)(double))
{
    if (m_host != nullptr) {
        m_host->OnStored(set);
    }
}

void COrrevaData::CopyTo(COrrevaData& dest) const
{
    dest.Reset();
    static_cast<TelescopeFields&>(dest) = *this;
    const double offset = dest.secondary_offset; // the one of these four that a file holds
    dest.ResetCaches();
    dest.secondary_offset = offset;
}

int COrrevaData::Save()
{
    if (!HasFile()) {
        return SaveAs(nullptr);
    }
    if (m_files == nullptr || !m_files->Write(*this)) {
        return 1;
    }
    modified = 0;
    return 0;
}

int COrrevaData::SaveAs(const char* pfn)
{
    ORREVA_ASSERT(pfn != NULL, "OrrevaDoc");
    if (pfn == nullptr) {
        return 1;
    }
    ORREVA_ASSERT(strlen(pfn) > 0, "OrrevaDoc");
    if (*pfn == 0) {
        return 1;
    }
    file_path = pfn;
    SetTitleOfDocument();
    return Save();
}

int COrrevaData::Load(const char* path)
{
    const Wait wait(m_host);
    if (path == nullptr || FileExists(path) == 0) {
        LibString message;
        message.Format("Die Datei %s existiert nicht!", Cp1252FromUtf8(file_path.GetText()).c_str());
        if (m_host != nullptr) {
            m_host->ShowMessage(message);
        }
        Clear();
        return 1;
    }
    LoadBy(path, [this](COrrevaData& record) {
        if (m_files != nullptr) {
            m_files->Read(record);
        }
    });
    return 0;
}

void COrrevaData::LoadBy(const char* path, const std::function<void(COrrevaData& record)>& read)
{
    file_path = path; // which may have been this very text
    SetTitleOfDocument();
    read(*this);
    modified = 0;
}

void COrrevaData::SetTitleOfDocument()
{
    if (m_host != nullptr) {
        m_host->SetDocumentTitle(file_path);
    }
}

std::int32_t COrrevaData::GetFocuserType()
{
    if (focuser_type == -1) {
        SetFocuserType(0);
    }
    return focuser_type;
}

void COrrevaData::SetFocuserType(std::int32_t value)
{
    focuser_total_height = HUGE_VAL;
    focal_plane_height = HUGE_VAL;
    focuser_type = value;
}

std::int32_t COrrevaData::GetTubeType()
{
    if (tube_type < 0) {
        SetTubeType(0);
    }
    return tube_type;
}

void COrrevaData::SetTubeType(std::int32_t value)
{
    LogFormatted("COrrevaData::SetTubeType: %d", value);
    tube_type = value;
}

// Getters with their defaults. Each operand that may store is a statement of its own, in the order told. ---

double COrrevaData::GetWanted100PercentFow()
{
    if (IsUnset(wanted_100percent_fow)) {
        SetWanted100PercentFow(12.0);
    }
    return wanted_100percent_fow;
}

double COrrevaData::GetMirrorDiameter()
{
    if (IsUnset(mirror_diameter)) {
        SetMirrorDiameter(250.0);
    }
    return mirror_diameter;
}

double COrrevaData::GetFocalLength()
{
    if (IsUnset(focal_length)) {
        const double D = GetMirrorDiameter();
        SetFocalLength(D * FocalRatioForDiameter(D));
    }
    return focal_length;
}

double COrrevaData::GetMirrorThickness()
{
    if (IsUnset(mirror_thickness)) {
        SetMirrorThickness(ThicknessForDiameter(GetMirrorDiameter()));
    }
    return mirror_thickness;
}

double COrrevaData::GetDensity()
{
    if (IsUnset(density)) {
        SetDensity(2.4);
    }
    return density;
}

double COrrevaData::GetSecondaryDiameter()
{
    if (IsUnset(secondary_diameter)) {
        const double D = GetMirrorDiameter();
        const double w = GetWanted100PercentFow();
        const double z = GetFocalPlaneHeight();
        const double f = GetFocalLength();
        SetSecondaryDiameter(StandardSecondaryDiameter((D - w) * z / f + w));
    }
    return secondary_diameter;
}

double COrrevaData::GetSecondaryOffset()
{
    if (IsUnset(secondary_offset)) {
        const double D = GetMirrorDiameter();
        const double m = GetSecondaryDiameter();
        const double f = GetFocalLength();
        SetSecondaryOffset(D * m / 4.0 / f);
    }
    return secondary_offset;
}

double COrrevaData::GetFocuserHeight()
{
    if (IsUnset(focuser_height)) {
        SetFocuserHeight(40.0);
    }
    return focuser_height;
}

double COrrevaData::GetFocuserDiameter()
{
    if (IsUnset(focuser_diameter)) {
        const double z = GetFocalPlaneHeight();
        const double D = GetMirrorDiameter();
        const double f = GetFocalLength();
        const double w = GetWanted100PercentFow();
        const double raw = z * D / f + w / 2;
        focuser_diameter = StandardFocuserDiameter(raw);
        LogFormatted("GetFocuserDiameter: %f, %f", raw, focuser_diameter);
    }
    return focuser_diameter;
}

double COrrevaData::GetFocuserSpare()
{
    if (IsUnset(focuser_spare)) {
        SetFocuserSpare(10.0);
    }
    return focuser_spare;
}

double COrrevaData::GetOazTravel()
{
    if (IsUnset(oaz_travel)) {
        const double travel = GetFocuserHeight() - 10.0;
        SetOazTravel(travel < 1.0 ? 1.0 : travel);
    }
    return oaz_travel;
}

double COrrevaData::GetOazLength()
{
    if (IsUnset(oaz_length)) {
        SetOazLength(GetFocuserHeight());
    }
    return oaz_length;
}

double COrrevaData::GetOschTravel()
{
    if (IsUnset(osch_travel)) {
        SetOschTravel(100.0);
    }
    return osch_travel;
}

double COrrevaData::GetDistanceBack()
{
    if (IsUnset(distance_back)) {
        double distance = GetMirrorDiameter() / 4.0;
        distance = distance < 20.0 ? 20.0 : distance;
        distance = distance > 80.0 ? 80.0 : distance;
        SetDistanceBack(distance);
    }
    return distance_back;
}

double COrrevaData::GetDistanceFront()
{
    if (IsUnset(distance_front)) {
        SetDistanceFront(GetMirrorDiameter() / 2.0);
    }
    return distance_front;
}

double COrrevaData::GetThicknessHat()
{
    if (IsUnset(thickness_hat)) {
        SetThicknessHat(GetMirrorDiameter() / 40.0);
    }
    return thickness_hat;
}

double COrrevaData::GetThicknessBox()
{
    if (IsUnset(thickness_box)) {
        SetThicknessBox(GetThicknessHat());
    }
    return thickness_box;
}

double COrrevaData::GetInsideDiameterHat()
{
    if (IsUnset(inside_diameter_hat)) {
        SetInsideDiameterHat(DefaultInsideDiameterHat());
    }
    return inside_diameter_hat;
}

double COrrevaData::DefaultInsideDiameterHat()
{
    constexpr double kSmallestMargin = 36.0;
    constexpr double kRadiansOfDegree = 0.017453292519444445;

    const double f = GetFocalLength();
    const double w = GetWanted100PercentFow();
    const double angle = FieldAngle(f, w);

    // The smallest margin stands in for the one that is still to be found.
    const double D = GetMirrorDiameter();
    const double thickness = GetThicknessHat();
    const double total = GetFocuserTotalHeight();
    const double front = GetDistanceFront();
    const double mirror_to_front = f - (D + kSmallestMargin) / 2 - thickness - total + front;
    LogFormatted("Mirror to Front: %f", mirror_to_front);

    const double margin = std::tan(kRadiansOfDegree * angle) * mirror_to_front;
    return D + (margin < kSmallestMargin ? kSmallestMargin : margin);
}

double COrrevaData::GetInsideDiameterBox()
{
    if (IsUnset(inside_diameter_box)) {
        SetInsideDiameterBox(GetInsideDiameterHat());
    }
    return inside_diameter_box;
}

double COrrevaData::GetHeightHat()
{
    if (IsUnset(height_hat)) {
        SetHeightHat(150.0);
    }
    return height_hat;
}

double COrrevaData::GetHeightBox()
{
    if (IsUnset(height_box)) {
        SetHeightBox(150.0);
    }
    return height_box;
}

double COrrevaData::GetRonchiGrating()
{
    if (IsUnset(ronchi_grating)) {
        SetRonchiGrating(5.0);
    }
    return ronchi_grating;
}

double COrrevaData::GetRonchiConstant()
{
    if (IsUnset(ronchi_constant)) {
        SetRonchiConstant(1.0);
    }
    return ronchi_constant;
}

double COrrevaData::GetStarDiameter()
{
    if (IsUnset(star_diameter)) {
        SetStarDiameter(0.05);
    }
    return star_diameter;
}

double COrrevaData::GetStarPrecision()
{
    if (IsUnset(star_precision)) {
        SetStarPrecision(20.0);
    }
    return star_precision;
}

// Weights and balance positions: defaults are stored directly. ---------------------------------------------

double COrrevaData::GetWeightMirror()
{
    if (IsUnset(weight_mirror)) {
        const double rho = GetDensity();
        const double D = GetMirrorDiameter();
        const double thickness = GetMirrorThickness();
        weight_mirror = (rho / 1000) * ((D / 2) * (D / 2) * kPi * thickness);
    }
    return weight_mirror;
}

double COrrevaData::GetBalanceMirror()
{
    if (IsUnset(balance_mirror)) {
        const double back = GetDistanceBack();
        balance_mirror = back + GetMirrorThickness() / 2;
    }
    return balance_mirror;
}

double COrrevaData::GetWeightCell()
{
    if (IsUnset(weight_cell)) {
        weight_cell = GetWeightMirror() / 2;
    }
    return weight_cell;
}

double COrrevaData::GetBalanceCell()
{
    if (IsUnset(balance_cell)) {
        const double B = GetBalanceMirror();
        const double behind = B - 1.2 * GetMirrorThickness();
        balance_cell = behind < 0 ? GetMirrorThickness() / 2 : behind;
    }
    return balance_cell;
}

double COrrevaData::GetWeightBox()
{
    if (IsUnset(weight_box)) {
        weight_box = GetWeightMirror() * 1.84;
    }
    return weight_box;
}

double COrrevaData::GetBalanceBox()
{
    if (IsUnset(balance_box)) {
        const double B = GetBalanceMirror();
        balance_box = B + GetBalanceCell();
    }
    return balance_box;
}

double COrrevaData::GetWeightTruss()
{
    if (IsUnset(weight_truss)) {
        weight_truss = GetWeightMirror() / 2;
    }
    return weight_truss;
}

double COrrevaData::GetBalanceTruss()
{
    if (IsUnset(balance_truss)) {
        const double B = GetBalanceMirror();
        balance_truss = B + GetFocalLength() / 2;
    }
    return balance_truss;
}

double COrrevaData::GetWeightHat()
{
    if (IsUnset(weight_hat)) {
        weight_hat = GetWeightMirror() / 1.5;
    }
    return weight_hat;
}

double COrrevaData::GetBalanceHat()
{
    if (IsUnset(balance_hat)) {
        const double B = GetBalanceMirror();
        const double f = GetFocalLength();
        balance_hat = B + f - GetSecondaryToFocus();
    }
    return balance_hat;
}

double COrrevaData::GetWeightSecondary()
{
    if (IsUnset(weight_secondary)) {
        weight_secondary = GetWeightMirror() / 8;
    }
    return weight_secondary;
}

double COrrevaData::GetBalanceSecondary()
{
    if (IsUnset(balance_secondary)) {
        const double hat = GetBalanceHat();
        balance_secondary = hat + hat / 80;
    }
    return balance_secondary;
}

double COrrevaData::GetWeightEyepiece()
{
    if (IsUnset(weight_eyepiece)) {
        weight_eyepiece = 350.0;
    }
    return weight_eyepiece;
}

double COrrevaData::GetBalanceEyepiece()
{
    if (IsUnset(balance_eyepiece)) {
        balance_eyepiece = GetBalanceHat();
    }
    return balance_eyepiece;
}

double COrrevaData::GetWeightFinder()
{
    if (IsUnset(weight_finder)) {
        weight_finder = 1000.0;
    }
    return weight_finder;
}

double COrrevaData::GetBalanceFinder()
{
    if (IsUnset(balance_finder)) {
        const double truss = GetBalanceTruss();
        balance_finder = (truss + GetBalanceHat()) / 2;
    }
    return balance_finder;
}

double COrrevaData::GetWeightMisc()
{
    if (IsUnset(weight_misc)) {
        weight_misc = 0.0;
    }
    return weight_misc;
}

double COrrevaData::GetBalanceMisc()
{
    if (IsUnset(balance_misc)) {
        balance_misc = 0.0;
    }
    return balance_misc;
}

// Computed values -----------------------------------------------------------------------------------------

double COrrevaData::GetFocuserTotalHeight()
{
    if (IsUnset(focuser_total_height)) {
        const double height = GetFocuserHeight();
        const double spare = GetFocuserSpare();
        focuser_total_height = height + spare;
        const std::int32_t type = GetFocuserType();
        if (type == 0 || type == 2) {
            const double travel = GetOazTravel();
            focuser_total_height = focuser_total_height + travel / 2;
        }
    }
    return focuser_total_height;
}

double COrrevaData::GetFocalPlaneHeight()
{
    if (IsUnset(focal_plane_height)) {
        const double total = GetFocuserTotalHeight();
        const double thickness = GetThicknessHat();
        const double inside = GetInsideDiameterHat();
        focal_plane_height = total + thickness + inside / 2;
    }
    return focal_plane_height;
}

double COrrevaData::GetSecondaryToFocus()
{
    if (IsUnset(secondary_to_focus)) {
        const double o = GetSecondaryOffset();
        const double z = GetFocalPlaneHeight();
        secondary_to_focus = std::sqrt(o * o + (o + z) * (o + z));
    }
    return secondary_to_focus;
}

double COrrevaData::GetPrimaryToFocuser()
{
    const double f = GetFocalLength();
    const double inside = GetInsideDiameterHat();
    const double thickness = GetThicknessHat();
    const double total = GetFocuserTotalHeight();
    return f - inside / 2 - thickness - total;
}

double COrrevaData::GetTubeLength()
{
    const double toFocuser = GetPrimaryToFocuser();
    const double thickness = GetMirrorThickness();
    const double back = GetDistanceBack();
    const double front = GetDistanceFront();
    return toFocuser + thickness + back + front;
}

// Setters with what they clear -----------------------------------------------------------------------------

void COrrevaData::SetWanted100PercentFow(double value) { wanted_100percent_fow = value; }

void COrrevaData::SetMirrorDiameter(double value)
{
    weight_mirror = HUGE_VAL;
    SetSecondaryOffset(HUGE_VAL);
    mirror_diameter = value;
}

void COrrevaData::SetFocalLength(double value)
{
    weight_mirror = HUGE_VAL;
    balance_mirror = HUGE_VAL;
    SetSecondaryOffset(HUGE_VAL);
    focal_length = value;
}

void COrrevaData::SetMirrorThickness(double value)
{
    weight_mirror = HUGE_VAL;
    balance_mirror = HUGE_VAL;
    mirror_thickness = value;
}

void COrrevaData::SetDensity(double value)
{
    weight_mirror = HUGE_VAL;
    density = value;
}

void COrrevaData::SetSecondaryDiameter(double value)
{
    SetSecondaryOffset(HUGE_VAL);
    secondary_diameter = value;
}

void COrrevaData::SetSecondaryOffset(double value)
{
    secondary_to_focus = HUGE_VAL;
    secondary_offset = value;
}

void COrrevaData::SetFocalPlaneHeight(double value)
{
    SetSecondaryOffset(HUGE_VAL);
    focal_plane_height = value;
}

void COrrevaData::SetThicknessHat(double value)
{
    SetFocalPlaneHeight(HUGE_VAL);
    thickness_hat = value;
}

void COrrevaData::SetInsideDiameterHat(double value)
{
    SetFocalPlaneHeight(HUGE_VAL);
    inside_diameter_hat = value;
}

void COrrevaData::SetFocuserHeight(double value)
{
    focuser_total_height = HUGE_VAL;
    SetFocalPlaneHeight(HUGE_VAL);
    focuser_height = value;
}

void COrrevaData::SetFocuserSpare(double value)
{
    focuser_total_height = HUGE_VAL;
    SetFocalPlaneHeight(HUGE_VAL);
    focuser_spare = value;
}

void COrrevaData::SetOazTravel(double value)
{
    focuser_total_height = HUGE_VAL;
    focal_plane_height = HUGE_VAL;
    oaz_travel = value;
}

void COrrevaData::SetDistanceBack(double value)
{
    balance_mirror = HUGE_VAL;
    distance_back = value;
}

void COrrevaData::SetFocuserDiameter(double value) { focuser_diameter = value; }
void COrrevaData::SetOazLength(double value) { oaz_length = value; }
void COrrevaData::SetOschTravel(double value) { osch_travel = value; }
void COrrevaData::SetDistanceFront(double value) { distance_front = value; }
void COrrevaData::SetThicknessBox(double value) { thickness_box = value; }
void COrrevaData::SetInsideDiameterBox(double value) { inside_diameter_box = value; }
void COrrevaData::SetHeightHat(double value) { height_hat = value; }
void COrrevaData::SetHeightBox(double value) { height_box = value; }
void COrrevaData::SetRonchiGrating(double value) { ronchi_grating = value; }
void COrrevaData::SetRonchiConstant(double value) { ronchi_constant = value; }
void COrrevaData::SetStarDiameter(double value) { star_diameter = value; }
void COrrevaData::SetStarPrecision(double value) { star_precision = value; }
