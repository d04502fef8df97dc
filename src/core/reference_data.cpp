#include "core/reference_data.h"

namespace orvex::core {

namespace {

int Whole(const Result& row, std::string_view field) {
  return static_cast<int>(row.Integer(field));
}

template <typename RowType, typename Read>
std::vector<RowType> ReadAll(const Store& store, std::string_view statement, Read read) {
  std::vector<RowType> rows;
  for (Result row = store.Query(statement); !row.AtEnd(); row.Next()) {
    rows.push_back(read(row));
  }
  return rows;
}

SignRow ReadSign(const Result& row) {
  return {Whole(row, "rashi"),           row.Text("zodiac"),         row.Text("element"),
          row.Text("startdegree"),       row.Text("enddegree"),      row.Text("gender"),
          row.Text("signtype"),          row.Flag("barren"),         row.Flag("mute"),
          row.Flag("fruitful"),          row.Flag("voice"),          row.Text("exaltedplanet"),
          row.Text("debilitatedplanet"), row.Text("beneficplanets"), row.Text("maleficplanets"),
          row.Text("neutralplanets"),    row.Text("rulingplanet")};
}

StarRow ReadStar(const Result& row) {
  return {Whole(row, "sequence"), row.Text("starname"), row.Text("starlord"), row.Text("gender"),
          row.Text("gana"),       row.Text("guna1"),    row.Text("guna2"),    row.Text("guna3")};
}

PadaRow ReadPada(const Result& row) {
  return {Whole(row, "starid"),      Whole(row, "pada"),      Whole(row, "rashi"),
          row.Number("startdegree"), row.Number("enddegree"), row.Number("startcdegree"),
          row.Number("endcdegree")};
}

SubRow ReadSub(const Result& row) {
  return {Whole(row, "ascno"),   row.Number("ascpointbegin"), row.Number("ascpointend"),
          row.Text("rashilord"), Whole(row, "rasilordno"),    row.Text("starlord"),
          row.Text("sublord")};
}

PlanetInfo ReadPlanet(const Result& row) {
  return {Whole(row, "id"),          row.Text("planetname"),   row.Text("planetcode"),
          Whole(row, "astronumber"), Whole(row, "dashayears"), Whole(row, "dashasequence")};
}

TithiRow ReadTithi(const Result& row) {
  return {row.Text("tithi"), row.Text("karan"), row.Text("tithitype"), row.Number("startdegree"),
          row.Number("enddegree")};
}

}  // namespace

ReferenceData LoadReferenceData(const Store& store) {
  return {ReadAll<SignRow>(store, "Select * from zodiac_master order by rashi", ReadSign),
          ReadAll<StarRow>(store, "Select * from star_master order by sequence", ReadStar),
          ReadAll<PadaRow>(store, "Select * from star_details order by starid, pada", ReadPada),
          ReadAll<SubRow>(store, "Select * from ascendants order by ascno", ReadSub),
          ReadAll<PlanetInfo>(store, "Select * from planet_master order by id", ReadPlanet),
          ReadAll<TithiRow>(store, "Select * from tithi_master order by startdegree", ReadTithi)};
}

}  // namespace orvex::core
