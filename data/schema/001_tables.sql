-- The tables as the first releases had them. A new store and a store of an old release both go on
-- from here: the columns that came later are added at start where a probe does not find them.

create table client_master (
  id integer primary key autoincrement,
  fullname text(100),
  cityid integer,
  groupid integer,
  birthdate text,
  latitude real,
  longitude real,
  offset real,
  firstrashihouse integer,
  email text,
  mobile text,
  gender text(1),
  horary integer,
  horaryno integer,
  comments text,
  createddate text,
  CuspDegree1 real, CuspDegree2 real, CuspDegree3 real, CuspDegree4 real,
  CuspDegree5 real, CuspDegree6 real, CuspDegree7 real, CuspDegree8 real,
  CuspDegree9 real, CuspDegree10 real, CuspDegree11 real, CuspDegree12 real
);

create table client_planets (
  clientid integer,
  planetid integer,
  rashihouse integer,
  chalithouse integer,
  degree real,
  starlord text,
  sublord text,
  inretro integer
);

create table client_remedy (
  id integer primary key autoincrement,
  clientid integer,
  forplanetid integer,
  problem text,
  remedy text,
  remedydate text
);

create table group_master (
  id integer primary key autoincrement,
  groupname text collate nocase
);

create table city_master (
  id integer primary key autoincrement,
  cityname text collate nocase,
  timezone text collate nocase,
  offset real,
  latitude real,
  longitude real
);

create table timezone_master (
  id integer primary key autoincrement,
  timezone text collate nocase,
  countrycode text,
  offset real
);

create table planet_master (
  id integer primary key,
  planetname text collate nocase,
  planetcode text collate nocase,
  astronumber integer,
  dashayears integer,
  dashasequence integer
);

create table zodiac_master (
  rashi integer primary key,
  zodiac text collate nocase,
  element text,
  startdegree real,
  enddegree real,
  gender text(1),
  signtype text(1),
  barren integer,
  mute integer,
  fruitful integer,
  voice integer,
  exaltedplanet text,
  debilitatedplanet text,
  beneficplanets text,
  maleficplanets text,
  neutralplanets text,
  rulingplanet text
);

create table star_master (
  sequence integer primary key,
  starname text collate nocase,
  starlord text,
  gender text(1),
  gana text(1),
  guna1 text,
  guna2 text,
  guna3 text
);

create table star_details (
  starid integer,
  pada integer,
  rashi integer,
  startdegree real,
  enddegree real,
  startcdegree real,
  endcdegree real
);

create table ascendants (
  ascno integer primary key,
  ascpointbegin real,
  ascpointend real,
  rashilord text,
  rasilordno integer,
  starlord text,
  sublord text
);

create table tithi_master (
  tithi text,
  karan text,
  tithitype text(1),
  startdegree real,
  enddegree real
);

create table planet_positions (
  planetname text collate nocase primary key,
  inretro integer,
  rashi integer,
  degree real
);

create table settings (
  usercityid integer,
  DefaultChartType text(1),
  RahuKetuCalculation text(1),
  chartpath text
);
