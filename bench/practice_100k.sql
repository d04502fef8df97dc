-- A practice of 100,000 clients in 20 groups, each with nine planets, and 50,000 remedies. All of it
-- made up by counting, so that every run measures the same rows.
begin;
with recursive n(i) as (select 1 union all select i + 1 from n where i < 20)
insert into group_master (groupname) select 'Practice ' || i from n;

with recursive n(i) as (select 0 union all select i + 1 from n where i < 99999)
insert into client_master (fullname, cityid, groupid, birthdate, latitude, longitude, offset,
  firstrashihouse, email, mobile, gender, horary, horaryno, HoraryQuestion, comments, AscDegreeType,
  createddate, CuspDegree1)
select 'Client ' || (i * 7919 % 100000), 1 + i % 50000, 2 + i % 20,
  printf('%04d-%02d-%02d %02d:%02d:00', 1930 + i % 90, 1 + i / 7 % 12, 1 + i / 11 % 28, i % 24, i % 60),
  19.07, 72.88, 5.5, 1 + i % 12, 'client' || i || '@example.org', '+91 ' || (9000000000 + i),
  substr('MFO', 1 + i % 3, 1), i % 10 = 0, case when i % 10 = 0 then 1 + i % 249 else 0 end, '',
  case when i % 50 = 0 then 'asked about work and a house' else 'regular visits' end, 'A',
  printf('20%02d-%02d-%02d %02d:%02d:%02d', i % 26, 1 + i / 7 % 12, 1 + i / 11 % 28, i % 24, i % 60, i % 59),
  (i * 37 % 36000) / 100.0
from n;

insert into client_planets (clientid, planetid, rashihouse, chalithouse, degree, starlord, sublord,
  inretro)
select cm.id, pm.id, 1, 1, (cm.id * pm.id * 13 % 36000) / 100.0, 'Sun', 'Moon',
  (cm.id + pm.id) % 5 = 0
from client_master cm, planet_master pm;

insert into client_remedy (clientid, forplanetid, problem, remedy, remedydate)
select id, id % 10, case when id % 40 = 0 then 'no sleep' else 'worry' end, 'a yellow sapphire',
  '2025-' || substr(createddate, 6)
from client_master where id % 2 = 0;
commit;
