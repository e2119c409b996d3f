# What LIESMICH.txt says of starting and removing, on Windows.
set(starting [[
  Entpacke das Archiv in einen Ordner, in dem Du schreiben darfst, also nicht unter "Programme":
  das Spiel schreibt seine Bestenliste, Score.hsc, neben sich. Dann ein Doppelklick auf Korvel.exe.
  Es braucht Windows 10 oder 11 (64 Bit) und sonst nichts.
]])
set(removing [[
  Diesen Ordner. Die Einstellungen liegen in der Registrierung unter
  HKEY_CURRENT_USER\Software\Korvel.

Korvel.exe enthält Qt 6, SDL 2, SQLite und was sie mitbringen; LIZENZEN.txt nennt deren Lizenzen.
]])
