[playlist]
NumberOfEntries=2
File1=http://radio.example.org:8000/live.mp3
Title1=Live
Length1=-1
File2=https://backup.example.org/live
Version=2
