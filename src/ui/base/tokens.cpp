#include "ui/base/tokens.h"

namespace orvex::ui {

namespace {

QColor C(unsigned rgb) { return QColor(rgb); }

// clang-format off
Tokens MakeLight() {
  Tokens t;
  t.Sheet = C(0xFFFEFC);      t.Ground = C(0xF1F0EC);     t.Bar = C(0xE8E7E2);   t.Sunk = C(0xF7F6F3);
  t.Ink = C(0x1B2026);        t.Ink2 = C(0x545A62);       t.Ink3 = C(0x666C74);
  t.Accent = C(0x1D4E89);     t.OnAccent = C(0xFFFFFF);   t.Sel = C(0xDBE7F4);   t.Now = C(0xB0281A);
  t.Good = C(0x1B6839);       t.GoodGround = C(0xDCF0DF);
  t.Hard = C(0xA3261B);       t.HardGround = C(0xF9DEDA);
  t.Amber = C(0x7A5200);      t.AmberGround = C(0xFAEFC8);
  t.Ascendant = C(0xFBF3CF);  t.Start = C(0xFEF9D1);
  t.Rule = C(0xE6E4DE);       t.Rule2 = C(0xC9C6BE);      t.HeadRule = C(0x2B3036);  t.Edge = C(0x88867F);
  t.Heat = {C(0xE3F1CF), C(0xCBE5A8), C(0xB7DA7F), C(0x4F7A1B)};
  t.HeatText = {t.Ink, t.Ink, t.Ink, C(0xFFFFFF)};
  t.Chips = {{{C(0xF5E3D6), C(0x8E4008)},    // SU
              {C(0xE4E7EA), C(0x42576C)},    // MO
              {C(0xF4DADB), C(0xA71A27)},    // MA
              {C(0xDBEBDD), C(0x17662B)},    // ME
              {C(0xEEE7D4), C(0x6D5200)},    // JU
              {C(0xF4DDE9), C(0x9B276F)},    // VE
              {C(0xDEE0EF), C(0x3144A8)},    // SA
              {C(0xD6E7E8), C(0x005D67)},    // RA
              {C(0xEAE2DB), C(0x7C4C2B)}}};  // KE
  return t;
}

Tokens MakeDark() {
  Tokens t;
  t.Sheet = C(0x1A1E23);      t.Ground = C(0x14171B);     t.Bar = C(0x101316);   t.Sunk = C(0x20252B);
  t.Ink = C(0xE6E8EA);        t.Ink2 = C(0xA8B0B9);       t.Ink3 = C(0x8A929C);
  t.Accent = C(0x8CB7F0);     t.OnAccent = C(0x0E1F36);   t.Sel = C(0x243A56);   t.Now = C(0xFF8C79);
  t.Good = C(0x83D39C);       t.GoodGround = C(0x1D3A28);
  t.Hard = C(0xFF9C8F);       t.HardGround = C(0x47241F);
  t.Amber = C(0xE8C161);      t.AmberGround = C(0x3B3319);
  t.Ascendant = C(0x3A3420);  t.Start = C(0x37321C);
  t.Rule = C(0x2B3138);       t.Rule2 = C(0x454D56);      t.HeadRule = C(0x79838E);  t.Edge = C(0x6B747E);
  t.Heat = {C(0x28331F), C(0x364A22), C(0x4A6A26), C(0xB7DA7F)};
  t.HeatText = {t.Ink, t.Ink, t.Ink, t.Sheet};
  t.Chips = {{{C(0x48382D), C(0xFFA661)},    // SU
              {C(0x3C4249), C(0xC6D3DF)},    // MO
              {C(0x482F33), C(0xFF9191)},    // MA
              {C(0x2C4338), C(0x74D68A)},    // ME
              {C(0x45412D), C(0xF0CB55)},    // JU
              {C(0x483545), C(0xFF99CE)},    // VE
              {C(0x33394F), C(0xA7B5FF)},    // SA
              {C(0x264248), C(0x55D0DC)},    // RA
              {C(0x3E3835), C(0xD6AD8A)}}};  // KE
  return t;
}
// clang-format on

}  // namespace

const Tokens& TokensOf(ThemeMode mode) {
  static const Tokens light = MakeLight();
  static const Tokens dark = MakeDark();
  return mode == ThemeMode::Dark ? dark : light;
}

ChipColors ChipOf(const Tokens& tokens, QStringView code) {
  for (std::size_t i = 0; i < kChipCodes.size(); ++i) {
    if (code == QLatin1String(kChipCodes.at(i))) {
      return tokens.Chips.at(i);
    }
  }
  return {tokens.Sunk, tokens.Ink};
}

}  // namespace orvex::ui
