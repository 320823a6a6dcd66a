#pragma once

#include "lib/text/LibString.h"
#include "model/record/Formulas.h"
#include "model/record/TelescopeFields.h"

#include <cstdint>
#include <functional>

class COrrevaData;

/// What a record asks of the document and the desktop that it lives in.
class RecordHost {
public:
    virtual ~RecordHost() = default;
    /// A question with Yes and No; `text` is code page 1252.
    virtual bool AskYesNo(const char* text) = 0;
    virtual void ShowMessage(const char* text) = 0;
    /// The document's title follows the record's path (bytes of the file system).
    virtual void SetDocumentTitle(const char* path) = 0;
    virtual void BeginWait() = 0;
    virtual void EndWait() = 0;
    /// A sheet stored a number through the setter `set`, or put it back to its default.
    virtual void OnStored(void (COrrevaData::*)(double) /*set*/) {}
};

/// How a record's design file is written and read, by the path that the record has.
class RecordFiles {
public:
    virtual ~RecordFiles() = default;
    /// False if the file could not be written whole; the old one is then as it was.
    virtual bool Write(const COrrevaData& record) = 0;
    /// Fills the record's fields from its file.
    virtual void Read(COrrevaData& record) = 0;
    /// A modified record is about to be reset and its changes are in no file: the user wanted no save, or the
    /// save failed. The last chance to keep a copy.
    virtual void NotSaved(const COrrevaData&, bool /*failed*/) {}
};

/// The telescope: at once the builder's input and a network of defaults.
///
/// Nearly every number may be unset (HUGE_VAL, or any NaN; -1 in the two types). A getter that finds its
/// field unset works out a sensible value from the other fields, stores it and returns it; from then on it
/// stands as if the builder had entered it. So a read may write. Setters clear by hand exactly the dependants
/// that their comments name. A value that was once defaulted stays until it is set, or cleared by storing
/// HUGE_VAL.
///
/// Lengths are mm, weights g, the density g/cm3, balance positions mm from the rear end of the tube. "hat" is
/// the upper cage or solid tube, "box" the mirror box, "oaz" the drawtube focuser, "osch" the sliding one.
class COrrevaData : public TelescopeFields {
public:
    /// `host` may be null: questions are then answered with No, messages and titles go nowhere. So may
    /// `files`: nothing is then written or read.
    explicit COrrevaData(RecordHost* host = nullptr, RecordFiles* files = nullptr);
    COrrevaData(const COrrevaData&) = delete;
    COrrevaData& operator=(const COrrevaData&) = delete;

    // The record as a whole ------------------------------------------------------------------------------

    /// The save prompt if modified, then an unset record under the name "noname.orreva.xml".
    void Reset();
    /// The state of a new record: not modified, reset, no path, no document title.
    void Clear();
    /// Unsets the three caches and the secondary's offset.
    void ResetCaches();
    /// Whether a telescope is loaded.
    bool HasFile() const;
    void SetModified(std::uint8_t value) { modified = value; }
    std::uint8_t IsModified() const { return modified; }
    /// To be called by who stores what a user typed: see RecordHost::OnStored.
    void TellStored(void (COrrevaData::*set)(double));
    /// Resets `dest` (with its prompt and its default path), then copies every field that a file holds.
    void CopyTo(COrrevaData& dest) const;

    // Files ----------------------------------------------------------------------------------------------

    /// Writes to `file_path`. 0 done, 1 not written; nothing is shown.
    int Save();
    /// Takes `path` (which must not be null or empty) as the record's path and title, then saves.
    int SaveAs(const char* path);
    /// Reads a design file into a record that the caller has reset. 0 done, 1 missing file: the record is
    /// cleared.
    int Load(const char* path);
    /// The part of Load behind the test whether the file exists, for bytes that others have read already:
    /// takes `path` as the record's path and title, and `read` fills the fields.
    void LoadBy(const char* path, const std::function<void(COrrevaData& record)>& read);

    // Texts and types ------------------------------------------------------------------------------------

    const LibString& GetTitle() const { return title; }
    const LibString& GetDescription() const { return description; }
    const LibString& GetMaterial() const { return material; }
    void SetTitle(const char* value) { title = value; }
    void SetDescription(const char* value) { description = value; }
    void SetMaterial(const char* value) { material = value; }

    /// 0 drawtube, 1 sliding, 2 both; -1 becomes 0, other negative values stay.
    std::int32_t GetFocuserType();
    /// Clears focuser_total_height and focal_plane_height directly: the secondary's offset stays.
    void SetFocuserType(std::int32_t value);
    /// 0 solid tube, above 0 truss; any negative value becomes 0.
    std::int32_t GetTubeType();
    void SetTubeType(std::int32_t value);

    // Numbers. A getter computes, stores and returns the default of an unset field. ----------------------

    double GetWanted100PercentFow(); // default: 12
    double GetMirrorDiameter();      // default: 250
    double GetFocalLength();         // default: D times a usual ratio
    double GetMirrorThickness();     // default: D / 6
    double GetDensity();             // default: 2.4
    double GetSecondaryDiameter();   // default: the standard size that lights the wanted field
    double GetSecondaryOffset();     // default: D m / 4 / f, by Francis
    double GetFocuserHeight();       // default: 40
    double GetFocuserDiameter();     // default: the standard opening that passes the wanted field
    double GetFocuserSpare();        // default: 10
    double GetOazTravel();           // default: the focuser height less 10, at least 1
    double GetOazLength();           // default: the focuser height
    double GetOschTravel();          // default: 100
    double GetDistanceBack();        // default: D / 4, between 20 and 80
    double GetDistanceFront();       // default: D / 2
    double GetThicknessHat();        // default: D / 40
    double GetThicknessBox();        // default: as the hat
    double GetInsideDiameterHat();   // default: D and a margin for the wanted field, at least 36
    double GetInsideDiameterBox();   // default: as the hat
    double GetHeightHat();           // default: 150
    double GetHeightBox();           // default: 150
    double GetRonchiGrating();       // default: 5
    double GetRonchiConstant();      // default: 1
    double GetStarDiameter();        // default: 0.05
    double GetStarPrecision();       // default: 20

    // Setters store; the comment names what each clears before that.

    void SetWanted100PercentFow(double value);
    void SetMirrorDiameter(double value); // weight_mirror, secondary_offset, secondary_to_focus
    void SetFocalLength(double value); // weight_mirror, balance_mirror, secondary_offset, secondary_to_focus
    void SetMirrorThickness(double value);   // weight_mirror, balance_mirror
    void SetDensity(double value);           // weight_mirror
    void SetSecondaryDiameter(double value); // secondary_offset, secondary_to_focus
    void SetSecondaryOffset(double value);   // secondary_to_focus
    void SetFocuserHeight(
        double value); // focuser_total_height, focal_plane_height, secondary_offset, secondary_to_focus
    void SetFocuserDiameter(double value);
    void SetFocuserSpare(double value); // as SetFocuserHeight
    void SetOazTravel(double value);    // focuser_total_height, focal_plane_height; the offset stays
    void SetOazLength(double value);
    void SetOschTravel(double value);
    void SetDistanceBack(double value); // balance_mirror
    void SetDistanceFront(double value);
    void SetThicknessHat(double value); // focal_plane_height, secondary_offset, secondary_to_focus
    void SetThicknessBox(double value);
    void SetInsideDiameterHat(double value); // focal_plane_height, secondary_offset, secondary_to_focus
    void SetInsideDiameterBox(double value);
    void SetHeightHat(double value);
    void SetHeightBox(double value);
    void SetRonchiGrating(double value);
    void SetRonchiConstant(double value);
    void SetStarDiameter(double value);
    void SetStarPrecision(double value);

    // Weights (g) and balance positions (mm from the rear end of the tube) of the nine components. Their
    // defaults rest on the mirror's weight and balance and are stored directly.

    double GetWeightMirror();
    double GetBalanceMirror();
    double GetWeightCell();
    double GetBalanceCell();
    double GetWeightBox();
    double GetBalanceBox();
    double GetWeightTruss();
    double GetBalanceTruss();
    double GetWeightHat();
    double GetBalanceHat();
    double GetWeightSecondary();
    double GetBalanceSecondary();
    double GetWeightEyepiece();
    double GetBalanceEyepiece();
    double GetWeightFinder();
    double GetBalanceFinder();
    double GetWeightMisc();
    double GetBalanceMisc();

    void SetWeightMirror(double value) { weight_mirror = value; }
    void SetBalanceMirror(double value) { balance_mirror = value; }
    void SetWeightCell(double value) { weight_cell = value; }
    void SetBalanceCell(double value) { balance_cell = value; }
    void SetWeightBox(double value) { weight_box = value; }
    void SetBalanceBox(double value) { balance_box = value; }
    void SetWeightTruss(double value) { weight_truss = value; }
    void SetBalanceTruss(double value) { balance_truss = value; }
    void SetWeightHat(double value) { weight_hat = value; }
    void SetBalanceHat(double value) { balance_hat = value; }
    void SetWeightSecondary(double value) { weight_secondary = value; }
    void SetBalanceSecondary(double value) { balance_secondary = value; }
    void SetWeightEyepiece(double value) { weight_eyepiece = value; }
    void SetBalanceEyepiece(double value) { balance_eyepiece = value; }
    void SetWeightFinder(double value) { weight_finder = value; }
    void SetBalanceFinder(double value) { balance_finder = value; }
    void SetWeightMisc(double value) { weight_misc = value; }
    void SetBalanceMisc(double value) { balance_misc = value; }

    // Computed, and cached or not stored at all ------------------------------------------------------------

    /// Height of the focal plane above the tube's outside, a drawtube standing at mid travel. The first call
    /// on a fresh record gives infinity: the partial sum is stored before the type and the travel are read,
    /// and their defaults clear it. Kept: callers run twice and rely on the order.
    double GetFocuserTotalHeight();
    /// Distance z from the optical axis to the focal plane; infinity with the height above.
    double GetFocalPlaneHeight();
    /// Straight distance from the focal point to the offset centre of the secondary.
    double GetSecondaryToFocus();
    /// Along the axis from the primary to the centre of the focuser.
    double GetPrimaryToFocuser();
    double GetTubeLength();

    void SetFocuserTotalHeight(double value) { focuser_total_height = value; }
    void SetFocalPlaneHeight(double value); // secondary_offset, secondary_to_focus
    void SetSecondaryToFocus(double value) { secondary_to_focus = value; }

    std::uint8_t modified = 0;
    LibString file_path; ///< bytes of the file system; empty: no telescope is loaded

private:
    double DefaultInsideDiameterHat();
    void SetTitleOfDocument();

    RecordHost* m_host;
    RecordFiles* m_files;
};
