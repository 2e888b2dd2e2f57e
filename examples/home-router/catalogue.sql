-- What the traffic classifier knows.
insert into App_Class(Id, Name, Name_En) values (1, '视频', 'Video'), (2, '游戏', 'Games');
insert into App_Info(Class_Id, Name, Name_En, Features) values
    (1, '示例视频', 'Example Video', 'vid-a'),
    (1, '示例直播', 'Example Live', 'vid-b'),
    (2, '示例冒险', 'Example Quest', 'gam-a');
