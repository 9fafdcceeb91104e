
[07:00:00 AM]
Duration=0:3:25
EndTime=07:03:25 AM
FileName=Morning news
Path=D:\Clips\Morning news.avi

[07:03:26 AM]
Duration=0:1:0
