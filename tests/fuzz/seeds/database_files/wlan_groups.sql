insert into WlanGroupInfo(WlanGroup_Id,WlanGroup_Name) values(1,'floor');
