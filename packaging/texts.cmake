# What LIESMICH.txt says of starting and removing.
set(starting [[
  Auf einem Debian 12 gehören diese Pakete dazu (einmal, als root):

    apt install libqt6widgets6 libqt6help6 libqt6sql6-sqlite qt6-wayland libsdl2-2.0-0 fonts-liberation

  Dann ./Korvel in diesem Ordner. Das Spiel schreibt seine Bestenliste, Score.hsc, neben sich:
  der Ordner muss Dir gehören. ./menue trägt das Spiel in Dein Menü ein, ./menue --weg wieder aus.
]])
set(removing [[
  ./menue --weg, dann diesen Ordner. Die Einstellungen liegen in ~/.config/Korvel.
]])
