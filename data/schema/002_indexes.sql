-- What the lists and searches look up by.
create index if not exists client_master_by_group on client_master (groupid);
create index if not exists client_master_by_city on client_master (cityid);
create index if not exists client_master_by_created on client_master (createddate);
create index if not exists client_planets_by_client on client_planets (clientid, planetid);
create index if not exists client_remedy_by_client on client_remedy (clientid);
create index if not exists city_master_by_name on city_master (cityname);
create index if not exists timezone_master_by_zone on timezone_master (timezone);
pragma user_version = 2;
