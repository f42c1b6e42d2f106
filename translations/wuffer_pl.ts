<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl" sourcelanguage="en">
<context>
    <name>About</name>
    <message>
        <source>About Wuffer</source>
        <translation>O programie Wuffer</translation>
    </message>
    <message>
        <source>Countdown timers for the desktop</source>
        <translation>Minutniki na pulpit</translation>
    </message>
    <message>
        <source>Copyright © 2026 The Wuffer developers
Free software under the MIT License: use it, change it
and pass it on. It comes without any warranty.</source>
        <translation>Copyright © 2026 The Wuffer developers
Wolne oprogramowanie na licencji MIT: można go używać, zmieniać je
i przekazywać dalej. Program nie jest objęty żadną gwarancją.</translation>
    </message>
    <message>
        <source>Libraries and their licenses</source>
        <translation>Biblioteki i ich licencje</translation>
    </message>
</context>
<context>
    <name>AboutDialog</name>
    <message>
        <source>sound output</source>
        <extracomment>What a library is used for.</extracomment>
        <translation>odtwarzanie dźwięku</translation>
    </message>
    <message>
        <source>sound files</source>
        <translation>pliki dźwiękowe</translation>
    </message>
    <message>
        <source>MP3 files</source>
        <translation>pliki MP3</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Wersja %1</translation>
    </message>
    <message>
        <source>windows</source>
        <extracomment>What a library is used for.</extracomment>
        <translation>okna</translation>
    </message>
    <message>
        <source>X Window System</source>
        <translation>X Window System</translation>
    </message>
    <message>
        <source>windows, session bus</source>
        <extracomment>What a library is used for.</extracomment>
        <translation>okna, magistrala sesji</translation>
    </message>
</context>
<context>
    <name>AlarmAnnouncement</name>
    <message>
        <source>Alarm ended</source>
        <extracomment>Screen readers say it after the name of a timer.</extracomment>
        <translation>Alarm zakończony</translation>
    </message>
</context>
<context>
    <name>Chain</name>
    <message>
        <source>Wuffer Chain - %1 of %2</source>
        <extracomment>The place of a timer in a chain: position and number of timers.</extracomment>
        <translation>Łańcuch minutników – %1 z %2</translation>
    </message>
    <message>
        <source>Started by “%1”</source>
        <extracomment>Names of timers.</extracomment>
        <translation>Uruchamiany przez „%1”</translation>
    </message>
    <message>
        <source>Starts “%1”</source>
        <translation>Uruchamia „%1”</translation>
    </message>
    <message>
        <source>Started by “%1”; starts “%2”</source>
        <translation>Uruchamiany przez „%1”; uruchamia „%2”</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Countdown timers for the desktop. If the program is already running, it carries out what is asked for here.</source>
        <translation>Minutniki na pulpit. Jeśli program już działa, to on wykona wydane tu polecenia.</translation>
    </message>
    <message>
        <source>Wait for the session bus to say what to open.</source>
        <translation>Czeka, aż magistrala sesji wskaże, co otworzyć.</translation>
    </message>
    <message>
        <source>Show this help.</source>
        <translation>Pokazuje tę pomoc.</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>Pokazuje wersję.</translation>
    </message>
    <message>
        <source>Unexpected argument “%1”.</source>
        <translation>Zbędny argument: „%1”.</translation>
    </message>
    <message>
        <source>Open a new timer.</source>
        <translation>Otwiera nowy minutnik.</translation>
    </message>
    <message>
        <source>Start every timer.</source>
        <translation>Uruchamia wszystkie minutniki.</translation>
    </message>
    <message>
        <source>Show the preferences.</source>
        <translation>Pokazuje preferencje.</translation>
    </message>
    <message>
        <source>Show the unit converter.</source>
        <translation>Pokazuje przelicznik miar.</translation>
    </message>
</context>
<context>
    <name>Converter</name>
    <message>
        <source>Volume (US measures)</source>
        <translation>Objętość (miary USA)</translation>
    </message>
    <message>
        <source>&amp;Milliliters:</source>
        <translation>Mil&amp;ilitry:</translation>
    </message>
    <message>
        <source>Milliliters</source>
        <translation>Mililitry</translation>
    </message>
    <message>
        <source>F&amp;luid ounces:</source>
        <translation>&amp;Uncje płynu:</translation>
    </message>
    <message>
        <source>Fluid ounces</source>
        <translation>Uncje płynu</translation>
    </message>
    <message>
        <source>&amp;Cups:</source>
        <translation>Sz&amp;klanki:</translation>
    </message>
    <message>
        <source>Cups</source>
        <translation>Szklanki</translation>
    </message>
    <message>
        <source>Ta&amp;blespoons:</source>
        <translation>Ł&amp;yżki:</translation>
    </message>
    <message>
        <source>Tablespoons</source>
        <translation>Łyżki</translation>
    </message>
    <message>
        <source>T&amp;easpoons:</source>
        <translation>Łyż&amp;eczki:</translation>
    </message>
    <message>
        <source>Teaspoons</source>
        <translation>Łyżeczki</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Masa</translation>
    </message>
    <message>
        <source>&amp;Grams:</source>
        <translation>&amp;Gramy:</translation>
    </message>
    <message>
        <source>Grams</source>
        <translation>Gramy</translation>
    </message>
    <message>
        <source>&amp;Ounces:</source>
        <translation>U&amp;ncje:</translation>
    </message>
    <message>
        <source>Ounces</source>
        <translation>Uncje</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatura</translation>
    </message>
    <message>
        <source>Cel&amp;sius:</source>
        <translation>Ce&amp;lsjusz:</translation>
    </message>
    <message>
        <source>Celsius</source>
        <translation>Stopnie Celsjusza</translation>
    </message>
    <message>
        <source>Fah&amp;renheit:</source>
        <translation>&amp;Fahrenheit:</translation>
    </message>
    <message>
        <source>Fahrenheit</source>
        <translation>Stopnie Fahrenheita</translation>
    </message>
</context>
<context>
    <name>FinishActions</name>
    <message>
        <source>Do Nothing</source>
        <translation>Nic nie rób</translation>
    </message>
    <message>
        <source>Loop this Wuffer</source>
        <translation>Powtarzaj ten minutnik</translation>
    </message>
    <message>
        <source>Start a Preset</source>
        <translation>Uruchom szablon</translation>
    </message>
    <message>
        <source>Start other open Wuffer</source>
        <translation>Uruchom inny otwarty minutnik</translation>
    </message>
</context>
<context>
    <name>FreedesktopNotifications</name>
    <message>
        <source>Show</source>
        <extracomment>A button of a notification: brings the timer to the front.</extracomment>
        <translation>Pokaż</translation>
    </message>
    <message>
        <source>Stop</source>
        <extracomment>A button of a notification: ends the alarm.</extracomment>
        <translation>Zatrzymaj</translation>
    </message>
</context>
<context>
    <name>GatheredNotifications</name>
    <message numerus="yes">
        <source>%n timers have ended</source>
        <translation>
            <numerusform>%n minutnik zakończył odliczanie</numerusform>
            <numerusform>%n minutniki zakończyły odliczanie</numerusform>
            <numerusform>%n minutników zakończyło odliczanie</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>i jeszcze %n</numerusform>
            <numerusform>i jeszcze %n</numerusform>
            <numerusform>i jeszcze %n</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Help</name>
    <message>
        <source>Back</source>
        <extracomment>Goes to the page of the help that was shown before.</extracomment>
        <translation>Wstecz</translation>
    </message>
    <message>
        <source>Forward</source>
        <extracomment>Goes to the page of the help that was shown after this one.</extracomment>
        <translation>Dalej</translation>
    </message>
    <message>
        <source>Search the help</source>
        <translation>Przeszukaj pomoc</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Szukaj</translation>
    </message>
    <message>
        <source>Pages</source>
        <extracomment>Accessible name of the list of pages.</extracomment>
        <translation>Strony</translation>
    </message>
</context>
<context>
    <name>HelpPages</name>
    <message>
        <source>en</source>
        <extracomment>The folder with the help pages in your language, such as &quot;de&quot;. Leave &quot;en&quot; if there is none.</extracomment>
        <translation>en</translation>
    </message>
    <message>
        <source>%1 menu</source>
        <extracomment>The title of a table of keys; %1 is the name of a menu.</extracomment>
        <translation>Menu %1</translation>
    </message>
    <message>
        <source>This help is available in English only.</source>
        <extracomment>Stands above the pages of the help in languages that the help is not translated to.</extracomment>
        <translation>Ta pomoc jest dostępna tylko po angielsku.</translation>
    </message>
</context>
<context>
    <name>HelpPanel</name>
    <message>
        <source>%1 (%2)</source>
        <extracomment>The title of a page of the help, and how often it has the searched words.</extracomment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <extracomment>The number of the selected place among all places with the searched words.</extracomment>
        <translation>%1 z %2</translation>
    </message>
    <message>
        <source>Found: %1</source>
        <translation>Znaleziono: %1</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>Nic nie znaleziono</translation>
    </message>
</context>
<context>
    <name>Home</name>
    <message>
        <source>New Timer</source>
        <translation>Nowy minutnik</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>Szablony</translation>
    </message>
</context>
<context>
    <name>KeepOnTopItem</name>
    <message>
        <source>Keep on &amp;Top</source>
        <translation>Zawsze na &amp;wierzchu</translation>
    </message>
</context>
<context>
    <name>KeepWuffing</name>
    <message>
        <source>A stopwatch has no alarm that could go on</source>
        <translation>Stoper nie ma alarmu, który mógłby trwać dalej</translation>
    </message>
    <message>
        <source>Only a timer that is to “%1” when finished can go on wuffing</source>
        <extracomment>%1 is the finish action “Do Nothing”.</extracomment>
        <translation>Szczekać dalej może tylko minutnik z czynnością po zakończeniu „%1”</translation>
    </message>
    <message>
        <source>The sound of all timers is off</source>
        <translation>Dźwięk wszystkich minutników jest wyłączony</translation>
    </message>
    <message>
        <source>Repeat the alarm sound until you press %1</source>
        <extracomment>%1 is the title of the button “Reset”.</extracomment>
        <translation>Powtarza dźwięk alarmu aż do naciśnięcia „%1”</translation>
    </message>
</context>
<context>
    <name>LaunchChoices</name>
    <message>
        <source>Open a Wuffer</source>
        <translation>Otwórz minutnik</translation>
    </message>
    <message>
        <source>Do Nothing</source>
        <translation>Nic nie rób</translation>
    </message>
    <message>
        <source>Open Preset ⌘1</source>
        <translation>Otwórz szablon ⌘1</translation>
    </message>
    <message>
        <source>Open and Start Preset ⌘1</source>
        <translation>Otwórz i uruchom szablon ⌘1</translation>
    </message>
</context>
<context>
    <name>LinkMenu</name>
    <message>
        <source>When F&amp;inished, Start</source>
        <translation>Po &amp;zakończeniu uruchom</translation>
    </message>
    <message>
        <source>&amp;None</source>
        <translation>Ż&amp;aden</translation>
    </message>
    <message>
        <source>No &amp;Other Timer Is Open</source>
        <translation>&amp;Brak innych otwartych minutników</translation>
    </message>
</context>
<context>
    <name>MainMenu</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Plik</translation>
    </message>
    <message>
        <source>&amp;New Timer</source>
        <translation>&amp;Nowy minutnik</translation>
    </message>
    <message>
        <source>Start &amp;All</source>
        <translation>&amp;Uruchom wszystkie</translation>
    </message>
    <message>
        <source>Mute All</source>
        <translation>Wycisz wszystkie</translation>
    </message>
    <message>
        <source>&amp;Preferences…</source>
        <translation>&amp;Preferencje…</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Zamknij</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>Za&amp;kończ</translation>
    </message>
    <message>
        <source>&amp;Timer</source>
        <translation>&amp;Minutnik</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Re&amp;name</source>
        <translation>Zmień &amp;nazwę</translation>
    </message>
    <message>
        <source>Stopwatch</source>
        <translation>Stoper</translation>
    </message>
    <message>
        <source>Count Down to a &amp;Date…</source>
        <translation>Odliczaj do &amp;daty…</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>&amp;Reset</translation>
    </message>
    <message>
        <source>&amp;Keep Wuffing</source>
        <translation>&amp;Szczekaj dalej</translation>
    </message>
    <message>
        <source>&amp;Full Screen</source>
        <translation>&amp;Pełny ekran</translation>
    </message>
    <message>
        <source>More Options</source>
        <translation>Więcej opcji</translation>
    </message>
    <message>
        <source>&amp;Window</source>
        <translation>&amp;Okno</translation>
    </message>
    <message>
        <source>&amp;Minimize</source>
        <translation>&amp;Zminimalizuj</translation>
    </message>
    <message>
        <source>&amp;Converter</source>
        <translation>&amp;Przelicznik</translation>
    </message>
    <message>
        <source>M&amp;easurements</source>
        <translation>&amp;Tabela miar</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Pomo&amp;c</translation>
    </message>
    <message>
        <source>Wuffer &amp;Help</source>
        <translation>&amp;Pomoc programu Wuffer</translation>
    </message>
    <message>
        <source>Wuffer on the &amp;Web</source>
        <translation>Wuffer w &amp;internecie</translation>
    </message>
    <message>
        <source>&amp;About Wuffer</source>
        <translation>&amp;O programie Wuffer</translation>
    </message>
</context>
<context>
    <name>MeasurementsPanel</name>
    <message>
        <source>Kitchen measurements</source>
        <translation>Miary kuchenne</translation>
    </message>
    <message>
        <source>1 teaspoon|1 tsp|⅓ tbsp|⅙ fl oz|4.93 mL</source>
        <translation>1 łyżeczka|1 łyżecz.|⅓ łyż.|⅙ fl oz|4.93 ml</translation>
    </message>
    <message>
        <source>1 tablespoon|3 tsp|1 tbsp|½ fl oz|14.79 mL</source>
        <translation>1 łyżka|3 łyżecz.|1 łyż.|½ fl oz|14.79 ml</translation>
    </message>
    <message>
        <source>1 fluid ounce|6 tsp|2 tbsp|1 fl oz|29.57 mL</source>
        <translation>1 uncja płynu|6 łyżecz.|2 łyż.|1 fl oz|29.57 ml</translation>
    </message>
    <message>
        <source>¼ cup|12 tsp|4 tbsp|2 fl oz|59.15 mL</source>
        <translation>¼ szklanki|12 łyżecz.|4 łyż.|2 fl oz|59.15 ml</translation>
    </message>
    <message>
        <source>⅓ cup|16 tsp|5⅓ tbsp|2⅔ fl oz|78.86 mL</source>
        <translation>⅓ szklanki|16 łyżecz.|5⅓ łyż.|2⅔ fl oz|78.86 ml</translation>
    </message>
    <message>
        <source>½ cup|24 tsp|8 tbsp|4 fl oz|118.29 mL</source>
        <translation>½ szklanki|24 łyżecz.|8 łyż.|4 fl oz|118.29 ml</translation>
    </message>
    <message>
        <source>⅔ cup|32 tsp|10⅔ tbsp|5⅓ fl oz|157.73 mL</source>
        <translation>⅔ szklanki|32 łyżecz.|10⅔ łyż.|5⅓ fl oz|157.73 ml</translation>
    </message>
    <message>
        <source>¾ cup|36 tsp|12 tbsp|6 fl oz|177.44 mL</source>
        <translation>¾ szklanki|36 łyżecz.|12 łyż.|6 fl oz|177.44 ml</translation>
    </message>
    <message>
        <source>1 cup|48 tsp|16 tbsp|8 fl oz|236.59 mL</source>
        <translation>1 szklanka|48 łyżecz.|16 łyż.|8 fl oz|236.59 ml</translation>
    </message>
    <message>
        <source>1 pint|96 tsp|32 tbsp|16 fl oz|473.18 mL</source>
        <translation>1 pinta|96 łyżecz.|32 łyż.|16 fl oz|473.18 ml</translation>
    </message>
    <message>
        <source>1 quart|192 tsp|64 tbsp|32 fl oz|946.35 mL</source>
        <translation>1 kwarta|192 łyżecz.|64 łyż.|32 fl oz|946.35 ml</translation>
    </message>
    <message>
        <source>1 gallon|768 tsp|256 tbsp|128 fl oz|3785.41 mL</source>
        <translation>1 galon|768 łyżecz.|256 łyż.|128 fl oz|3785.41 ml</translation>
    </message>
    <message>
        <source>1 metric teaspoon|0.17 fl oz|5 mL</source>
        <translation>1 łyżeczka metryczna|0.17 fl oz|5 ml</translation>
    </message>
    <message>
        <source>1 metric tablespoon|0.51 fl oz|15 mL</source>
        <translation>1 łyżka metryczna|0.51 fl oz|15 ml</translation>
    </message>
    <message>
        <source>1 Australian tablespoon|0.68 fl oz|20 mL</source>
        <translation>1 łyżka australijska|0.68 fl oz|20 ml</translation>
    </message>
    <message>
        <source>1 Japanese cup|6.76 fl oz|200 mL</source>
        <translation>1 szklanka japońska|6.76 fl oz|200 ml</translation>
    </message>
    <message>
        <source>1 metric cup|8.45 fl oz|250 mL</source>
        <translation>1 szklanka metryczna|8.45 fl oz|250 ml</translation>
    </message>
    <message>
        <source>1 liter|33.81 fl oz|1000 mL</source>
        <translation>1 litr|33.81 fl oz|1000 ml</translation>
    </message>
    <message>
        <source>1 UK fluid ounce|0.96 fl oz|28.41 mL</source>
        <translation>1 brytyjska uncja płynu|0.96 fl oz|28.41 ml</translation>
    </message>
    <message>
        <source>1 UK pint|19.22 fl oz|568.26 mL</source>
        <translation>1 brytyjska pinta|19.22 fl oz|568.26 ml</translation>
    </message>
    <message>
        <source>1 UK quart|38.43 fl oz|1136.52 mL</source>
        <translation>1 brytyjska kwarta|38.43 fl oz|1136.52 ml</translation>
    </message>
    <message>
        <source>1 UK gallon|153.72 fl oz|4546.09 mL</source>
        <translation>1 brytyjski galon|153.72 fl oz|4546.09 ml</translation>
    </message>
    <message>
        <source>1 ounce|1 oz|0.0625 lb|28.35 g</source>
        <translation>1 uncja|1 oz|0.0625 lb|28.35 g</translation>
    </message>
    <message>
        <source>2 ounces|2 oz|0.125 lb|56.70 g</source>
        <translation>2 uncje|2 oz|0.125 lb|56.70 g</translation>
    </message>
    <message>
        <source>¼ pound|4 oz|0.25 lb|113.40 g</source>
        <translation>¼ funta|4 oz|0.25 lb|113.40 g</translation>
    </message>
    <message>
        <source>½ pound|8 oz|0.5 lb|226.80 g</source>
        <translation>½ funta|8 oz|0.5 lb|226.80 g</translation>
    </message>
    <message>
        <source>¾ pound|12 oz|0.75 lb|340.19 g</source>
        <translation>¾ funta|12 oz|0.75 lb|340.19 g</translation>
    </message>
    <message>
        <source>1 pound|16 oz|1 lb|453.59 g</source>
        <translation>1 funt|16 oz|1 lb|453.59 g</translation>
    </message>
    <message>
        <source>2 pounds|32 oz|2 lb|907.18 g</source>
        <translation>2 funty|32 oz|2 lb|907.18 g</translation>
    </message>
    <message>
        <source>50 grams|1.76 oz|0.110 lb|50 g</source>
        <translation>50 gramów|1.76 oz|0.110 lb|50 g</translation>
    </message>
    <message>
        <source>100 grams|3.53 oz|0.220 lb|100 g</source>
        <translation>100 gramów|3.53 oz|0.220 lb|100 g</translation>
    </message>
    <message>
        <source>250 grams|8.82 oz|0.551 lb|250 g</source>
        <translation>250 gramów|8.82 oz|0.551 lb|250 g</translation>
    </message>
    <message>
        <source>500 grams|17.64 oz|1.102 lb|500 g</source>
        <translation>500 gramów|17.64 oz|1.102 lb|500 g</translation>
    </message>
    <message>
        <source>1 kilogram|35.27 oz|2.205 lb|1000 g</source>
        <translation>1 kilogram|35.27 oz|2.205 lb|1000 g</translation>
    </message>
    <message>
        <source>⅛ stick|1 tbsp|1⁄16 cup|½ oz|14.17 g</source>
        <translation>⅛ kostki|1 łyż.|1⁄16 szkl.|½ oz|14.17 g</translation>
    </message>
    <message>
        <source>¼ stick|2 tbsp|⅛ cup|1 oz|28.35 g</source>
        <translation>¼ kostki|2 łyż.|⅛ szkl.|1 oz|28.35 g</translation>
    </message>
    <message>
        <source>½ stick|4 tbsp|¼ cup|2 oz|56.70 g</source>
        <translation>½ kostki|4 łyż.|¼ szkl.|2 oz|56.70 g</translation>
    </message>
    <message>
        <source>1 stick|8 tbsp|½ cup|4 oz|113.40 g</source>
        <translation>1 kostka|8 łyż.|½ szkl.|4 oz|113.40 g</translation>
    </message>
    <message>
        <source>2 sticks|16 tbsp|1 cup|8 oz|226.80 g</source>
        <translation>2 kostki|16 łyż.|1 szkl.|8 oz|226.80 g</translation>
    </message>
    <message>
        <source>4 sticks|32 tbsp|2 cups|16 oz|453.59 g</source>
        <translation>4 kostki|32 łyż.|2 szkl.|16 oz|453.59 g</translation>
    </message>
    <message>
        <source>Very cool|Gas ¼|225 °F|107 °C|110 °C</source>
        <translation>Ledwie letni|Gaz ¼|225 °F|107 °C|110 °C</translation>
    </message>
    <message>
        <source>Very cool|Gas ½|250 °F|121 °C|120 °C</source>
        <translation>Ledwie letni|Gaz ½|250 °F|121 °C|120 °C</translation>
    </message>
    <message>
        <source>Cool|Gas 1|275 °F|135 °C|140 °C</source>
        <translation>Letni|Gaz 1|275 °F|135 °C|140 °C</translation>
    </message>
    <message>
        <source>Cool|Gas 2|300 °F|149 °C|150 °C</source>
        <translation>Letni|Gaz 2|300 °F|149 °C|150 °C</translation>
    </message>
    <message>
        <source>Warm|Gas 3|325 °F|163 °C|160 °C</source>
        <translation>Ciepły|Gaz 3|325 °F|163 °C|160 °C</translation>
    </message>
    <message>
        <source>Moderate|Gas 4|350 °F|177 °C|180 °C</source>
        <translation>Umiarkowany|Gaz 4|350 °F|177 °C|180 °C</translation>
    </message>
    <message>
        <source>Fairly hot|Gas 5|375 °F|191 °C|190 °C</source>
        <translation>Dość gorący|Gaz 5|375 °F|191 °C|190 °C</translation>
    </message>
    <message>
        <source>Fairly hot|Gas 6|400 °F|204 °C|200 °C</source>
        <translation>Dość gorący|Gaz 6|400 °F|204 °C|200 °C</translation>
    </message>
    <message>
        <source>Hot|Gas 7|425 °F|218 °C|220 °C</source>
        <translation>Gorący|Gaz 7|425 °F|218 °C|220 °C</translation>
    </message>
    <message>
        <source>Very hot|Gas 8|450 °F|232 °C|230 °C</source>
        <translation>Bardzo gorący|Gaz 8|450 °F|232 °C|230 °C</translation>
    </message>
    <message>
        <source>Very hot|Gas 9|475 °F|246 °C|250 °C</source>
        <translation>Bardzo gorący|Gaz 9|475 °F|246 °C|250 °C</translation>
    </message>
    <message>
        <source>Teaspoons to milliliters|× 4.929</source>
        <translation>Łyżeczki na mililitry|× 4.929</translation>
    </message>
    <message>
        <source>Tablespoons to milliliters|× 14.79</source>
        <translation>Łyżki na mililitry|× 14.79</translation>
    </message>
    <message>
        <source>Fluid ounces to milliliters|× 29.57</source>
        <translation>Uncje płynu na mililitry|× 29.57</translation>
    </message>
    <message>
        <source>Cups to milliliters|× 236.6</source>
        <translation>Szklanki na mililitry|× 236.6</translation>
    </message>
    <message>
        <source>Milliliters to fluid ounces|× 0.03381</source>
        <translation>Mililitry na uncje płynu|× 0.03381</translation>
    </message>
    <message>
        <source>Quarts to liters|× 0.9464</source>
        <translation>Kwarty na litry|× 0.9464</translation>
    </message>
    <message>
        <source>Liters to quarts|× 1.057</source>
        <translation>Litry na kwarty|× 1.057</translation>
    </message>
    <message>
        <source>Ounces to grams|× 28.35</source>
        <translation>Uncje na gramy|× 28.35</translation>
    </message>
    <message>
        <source>Grams to ounces|× 0.03527</source>
        <translation>Gramy na uncje|× 0.03527</translation>
    </message>
    <message>
        <source>Pounds to kilograms|× 0.4536</source>
        <translation>Funty na kilogramy|× 0.4536</translation>
    </message>
    <message>
        <source>Kilograms to pounds|× 2.205</source>
        <translation>Kilogramy na funty|× 2.205</translation>
    </message>
    <message>
        <source>Inches to centimeters|× 2.54</source>
        <translation>Cale na centymetry|× 2.54</translation>
    </message>
    <message>
        <source>Centimeters to inches|× 0.3937</source>
        <translation>Centymetry na cale|× 0.3937</translation>
    </message>
    <message>
        <source>Celsius to Fahrenheit|× 1.8, then + 32</source>
        <translation>Stopnie Celsjusza na Fahrenheita|× 1.8, potem + 32</translation>
    </message>
    <message>
        <source>Fahrenheit to Celsius|− 32, then ÷ 1.8</source>
        <translation>Stopnie Fahrenheita na Celsjusza|− 32, potem ÷ 1.8</translation>
    </message>
    <message>
        <source>Volume, US measures</source>
        <translation>Objętość, miary USA</translation>
    </message>
    <message>
        <source>Measure|Teaspoons|Tablespoons|Fluid ounces|Milliliters</source>
        <translation>Miara|Łyżeczki|Łyżki|Uncje płynu|Mililitry</translation>
    </message>
    <message>
        <source>Volume, other measures</source>
        <translation>Objętość, inne miary</translation>
    </message>
    <message>
        <source>Measure|US fluid ounces|Milliliters</source>
        <translation>Miara|Uncje płynu (USA)|Mililitry</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Masa</translation>
    </message>
    <message>
        <source>Weight|Ounces|Pounds|Grams</source>
        <translation>Masa|Uncje|Funty|Gramy</translation>
    </message>
    <message>
        <source>Butter, US sticks</source>
        <translation>Masło, kostki amerykańskie</translation>
    </message>
    <message>
        <source>Butter|Tablespoons|Cups|Ounces|Grams</source>
        <translation>Masło|Łyżki|Szklanki|Uncje|Gramy</translation>
    </message>
    <message>
        <source>Oven temperatures</source>
        <translation>Temperatury piekarnika</translation>
    </message>
    <message>
        <source>Heat|Gas mark|Fahrenheit|Celsius|On the dial</source>
        <translation>Piekarnik|Stopień gazu|Fahrenheit|Celsjusz|Na pokrętle</translation>
    </message>
    <message>
        <source>Common conversions</source>
        <translation>Częste przeliczenia</translation>
    </message>
    <message>
        <source>Conversion|Calculation</source>
        <translation>Przeliczenie|Obliczenie</translation>
    </message>
</context>
<context>
    <name>Preferences</name>
    <message>
        <source>Preferences</source>
        <translation>Preferencje</translation>
    </message>
    <message>
        <source>&amp;General</source>
        <extracomment>The title of a page.</extracomment>
        <translation>O&amp;gólne</translation>
    </message>
    <message>
        <source>At &amp;launch:</source>
        <extracomment>Stands before the list of what opens when the program starts.</extracomment>
        <translation>Przy &amp;uruchomieniu:</translation>
    </message>
    <message>
        <source>What opens when the program starts</source>
        <translation>Co się otwiera po uruchomieniu programu</translation>
    </message>
    <message>
        <source>At launch</source>
        <translation>Przy uruchomieniu</translation>
    </message>
    <message>
        <source>Finished te&amp;xt:</source>
        <extracomment>Stands before the text that timers show at their end.</extracomment>
        <translation>&amp;Tekst końcowy:</translation>
    </message>
    <message>
        <source>What a timer says when its countdown has ended</source>
        <translation>Co pokazuje minutnik po zakończeniu odliczania</translation>
    </message>
    <message>
        <source>Finished text</source>
        <translation>Tekst końcowy</translation>
    </message>
    <message>
        <source>A timer that is opened from a preset starts at once</source>
        <translation>Minutnik otwarty z szablonu od razu zaczyna odliczać</translation>
    </message>
    <message>
        <source>Start presets when they are &amp;opened</source>
        <translation>Uruchamiaj sza&amp;blony po otwarciu</translation>
    </message>
    <message>
        <source>The desktop does not tell of countdowns that have ended</source>
        <translation>Pulpit nie powiadamia o zakończeniu odliczania</translation>
    </message>
    <message>
        <source>Turn off &amp;notifications</source>
        <translation>&amp;Wyłącz powiadomienia</translation>
    </message>
    <message>
        <source>Running timers do not show in the panel of the desktop</source>
        <translation>Działające minutniki nie są widoczne w panelu pulpitu</translation>
    </message>
    <message>
        <source>Hide the status &amp;item</source>
        <extracomment>The item of the program in the panel of the desktop.</extracomment>
        <translation>Ukryj wskaźni&amp;k w panelu</translation>
    </message>
    <message>
        <source>Timers refresh their display less often and show no milliseconds.
Beeps and the end of a countdown come up to 0.2 seconds late.</source>
        <translation>Minutniki rzadziej odświeżają wyświetlacz i nie pokazują milisekund.
Sygnały i koniec odliczania mogą się spóźnić do 0,2 sekundy.</translation>
    </message>
    <message>
        <source>&amp;Energy saver</source>
        <translation>Oszczędzanie &amp;energii</translation>
    </message>
    <message>
        <source>&amp;Sounds</source>
        <extracomment>The title of a page.</extracomment>
        <translation>&amp;Dźwięki</translation>
    </message>
    <message>
        <source>No timer makes a sound</source>
        <translation>Żaden minutnik nie wydaje dźwięku</translation>
    </message>
    <message>
        <source>&amp;Mute all timers</source>
        <translation>&amp;Wycisz wszystkie minutniki</translation>
    </message>
    <message>
        <source>The last seconds of a countdown pass in silence</source>
        <translation>Ostatnie sekundy odliczania mijają w ciszy</translation>
    </message>
    <message>
        <source>Turn off countdown &amp;beeps</source>
        <translation>Wyłącz sygnały odl&amp;iczania</translation>
    </message>
    <message>
        <source>&amp;Alarm:</source>
        <translation>&amp;Alarm:</translation>
    </message>
    <message>
        <source>Alarm sound of new timers</source>
        <translation>Dźwięk alarmu nowych minutników</translation>
    </message>
    <message>
        <source>Play the alarm sound</source>
        <translation>Odtwórz dźwięk alarmu</translation>
    </message>
    <message>
        <source>Stop the alarm sound</source>
        <translation>Zatrzymaj dźwięk alarmu</translation>
    </message>
    <message>
        <source>In use:</source>
        <extracomment>Stands before the name of a sound.</extracomment>
        <translation>W użyciu:</translation>
    </message>
    <message>
        <source>Alarm sound in use</source>
        <translation>Używany dźwięk alarmu</translation>
    </message>
    <message>
        <source>Alarm sound that cannot be played</source>
        <translation>Dźwięk alarmu, którego nie można odtworzyć</translation>
    </message>
    <message>
        <source>&amp;Countdown:</source>
        <translation>Od&amp;liczanie:</translation>
    </message>
    <message>
        <source>Countdown sound of new timers</source>
        <translation>Dźwięk odliczania nowych minutników</translation>
    </message>
    <message>
        <source>Play the countdown sound</source>
        <translation>Odtwórz dźwięk odliczania</translation>
    </message>
    <message>
        <source>Stop the countdown sound</source>
        <translation>Zatrzymaj dźwięk odliczania</translation>
    </message>
    <message>
        <source>Countdown sound in use</source>
        <translation>Używany dźwięk odliczania</translation>
    </message>
    <message>
        <source>Countdown sound that cannot be played</source>
        <translation>Dźwięk odliczania, którego nie można odtworzyć</translation>
    </message>
    <message>
        <source>Timers opened from now on begin with these sounds. Each timer offers a choice of its own under More Options.</source>
        <translation>Te dźwięki dostają minutniki otwierane od tej chwili. Dla każdego minutnika można wybrać inne pod przyciskiem „Więcej opcji”.</translation>
    </message>
    <message>
        <source>Mute All</source>
        <translation>Wycisz wszystkie</translation>
    </message>
    <message>
        <source>Unmute All</source>
        <translation>Wyłącz wyciszenie</translation>
    </message>
    <message>
        <source>Select a sound file</source>
        <translation>Wybierz plik dźwiękowy</translation>
    </message>
    <message>
        <source>Unplayable:</source>
        <extracomment>Stands before the name of the file of a sound.</extracomment>
        <translation>Błędny plik:</translation>
    </message>
    <message>
        <source>Missing:</source>
        <translation>Brak pliku:</translation>
    </message>
    <message>
        <source>Running timers do not show in the panel</source>
        <extracomment>A line below “Hide the status item”; as short as possible.</extracomment>
        <translation>Działające minutniki nie są widoczne w panelu</translation>
    </message>
    <message>
        <source>No milliseconds; beeps and alarms up to 0.2 s late</source>
        <extracomment>A line below “Energy saver”; as short as possible.</extracomment>
        <translation>Bez milisekund; sygnały i alarmy mogą się spóźnić do 0,2 sekundy</translation>
    </message>
</context>
<context>
    <name>Preset</name>
    <message>
        <source>Preset %1</source>
        <extracomment>In the display of a timer opened from a preset; %1 is its number.</extracomment>
        <translation>Szablon %1</translation>
    </message>
    <message>
        <source>Saved to Preset %1</source>
        <extracomment>In the display of a timer saved into a preset; %1 is its number.</extracomment>
        <translation>Zapisano szablon %1</translation>
    </message>
</context>
<context>
    <name>PresetsMenu</name>
    <message>
        <source>&amp;Presets</source>
        <translation>&amp;Szablony</translation>
    </message>
    <message>
        <source>Save Wuffer to Preset</source>
        <translation>Zapisz minutnik jako szablon</translation>
    </message>
    <message>
        <source>Shortcut: Hold Control and press a number key</source>
        <translation>Skrót: przytrzymaj Ctrl i naciśnij klawisz cyfry</translation>
    </message>
    <message>
        <source>⌘%1 (Overwrite %2)</source>
        <extracomment>The number of a preset, and the name and time in it, which saving replaces.</extracomment>
        <translation>⌘%1 (zastąp: %2)</translation>
    </message>
</context>
<context>
    <name>SoundEntries</name>
    <message>
        <source>Wuff (Default)</source>
        <extracomment>A sound of the program: the bark of a dog.</extracomment>
        <translation>Wuff (domyślny)</translation>
    </message>
    <message>
        <source>Crow (Default)</source>
        <extracomment>A sound of the program: the caw of a crow.</extracomment>
        <translation>Krakanie (domyślne)</translation>
    </message>
    <message>
        <source>Select another sound...</source>
        <translation>Wybierz inny dźwięk...</translation>
    </message>
    <message>
        <source>Clear custom sounds</source>
        <translation>Wyczyść własne dźwięki</translation>
    </message>
    <message>
        <source>Manage Sounds...</source>
        <translation>Zarządzaj dźwiękami...</translation>
    </message>
</context>
<context>
    <name>StatusItem</name>
    <message>
        <source>%1: %2</source>
        <extracomment>The name of the program and the time of a timer.</extracomment>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>TargetTime</name>
    <message>
        <source>Target Date</source>
        <extracomment>The title of the sheet in which the user picks the date at which a timer rings.</extracomment>
        <translation>Data docelowa</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Kalendarz</translation>
    </message>
    <message>
        <source>Ring &amp;at:</source>
        <extracomment>Stands before the date and time at which a timer rings.</extracomment>
        <translation>&amp;Czas alarmu:</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Data i godzina</translation>
    </message>
    <message>
        <source>How long that is from now</source>
        <translation>Ile czasu pozostało do alarmu</translation>
    </message>
</context>
<context>
    <name>TargetTimeSheet</name>
    <message>
        <source>Previous month</source>
        <extracomment>Accessible name: the arrow of the calendar that turns one month back.</extracomment>
        <translation>Poprzedni miesiąc</translation>
    </message>
    <message>
        <source>Next month</source>
        <extracomment>Accessible name: the arrow of the calendar that turns one month on.</extracomment>
        <translation>Następny miesiąc</translation>
    </message>
</context>
<context>
    <name>TimeDistance</name>
    <message>
        <source>%1 d</source>
        <extracomment>Days, hours, minutes and seconds, abbreviated, as in “in 4 h 12 min”.</extracomment>
        <translation>%1 d</translation>
    </message>
    <message>
        <source>%1 h</source>
        <translation>%1 h</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 min</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>now</source>
        <extracomment>The time that is left until a date: none.</extracomment>
        <translation>teraz</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <extracomment>Two units of a time, the larger first: “4 h 12 min”.</extracomment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>in %1</source>
        <extracomment>The time that is left until a date: “in 4 h 12 min”.</extracomment>
        <translation>za %1</translation>
    </message>
</context>
<context>
    <name>TimeFormat</name>
    <message>
        <source>%1d </source>
        <extracomment>The parts of a running time, such as “1h 5m 3s”: days, hours, minutes and seconds. They stand side by side, so all but the seconds end with a blank. The display has room for ten characters at its largest size.</extracomment>
        <translation>%1d </translation>
    </message>
    <message>
        <source>%1h </source>
        <translation>%1h </translation>
    </message>
    <message>
        <source>%1m </source>
        <translation>%1m </translation>
    </message>
    <message>
        <source>%1s</source>
        <extracomment>The last part of a running time, such as “1h 5m 3s”.</extracomment>
        <translation>%1s</translation>
    </message>
    <message>
        <source>%1h %2m %3s</source>
        <extracomment>The time set in a timer: hours, minutes and seconds.</extracomment>
        <translation>%1h %2m %3s</translation>
    </message>
</context>
<context>
    <name>TimeText</name>
    <message>
        <source>d day days</source>
        <extracomment>Words and letters for days that users type after a number, separated by blanks. The English ones are always understood; give those of your language. One word must not stand for two units.</extracomment>
        <translation>d dzień dzien dnia dni doba doby dobę dobe dób</translation>
    </message>
    <message>
        <source>h hr hrs hour hours</source>
        <extracomment>The same for hours.</extracomment>
        <translation>h g godz godzina godziny godzinę godzine godzin</translation>
    </message>
    <message>
        <source>m min mins minute minutes</source>
        <extracomment>The same for minutes.</extracomment>
        <translation>m min minuta minuty minutę minute minut</translation>
    </message>
    <message>
        <source>s sec secs second seconds</source>
        <extracomment>The same for seconds.</extracomment>
        <translation>s sek sekunda sekundy sekundę sekunde sekund</translation>
    </message>
    <message>
        <source>and</source>
        <extracomment>The word between two units: “1 hour and 5 minutes”.</extracomment>
        <translation>i</translation>
    </message>
</context>
<context>
    <name>TimerRun</name>
    <message>
        <source>%1 (x%2)</source>
        <extracomment>A time, and the number of the pass of a timer that loops.</extracomment>
        <translation>%1 (x%2)</translation>
    </message>
</context>
<context>
    <name>TimerTexts</name>
    <message>
        <source>Start</source>
        <extracomment>On the button and in the menu: runs the timer.</extracomment>
        <translation>Start</translation>
    </message>
    <message>
        <source>Stop</source>
        <extracomment>On the button and in the menu: stops the running timer.</extracomment>
        <translation>Stop</translation>
    </message>
    <message>
        <source>Reset</source>
        <extracomment>On the button and in the menu, during an alarm: ends the alarm.</extracomment>
        <translation>Reset</translation>
    </message>
    <message>
        <source>Start Chain</source>
        <extracomment>On the button and in the menu, at the first timer of a chain: runs the chain.</extracomment>
        <translation>Start łańcucha</translation>
    </message>
    <message>
        <source>Chained</source>
        <extracomment>On the disabled button and in the menu: another timer starts this one.</extracomment>
        <translation>W łańcuchu</translation>
    </message>
    <message>
        <source>Stopwatch</source>
        <extracomment>A timer that counts up, and the menu item that makes a timer one.</extracomment>
        <translation>Stoper</translation>
    </message>
    <message>
        <source>Timer</source>
        <extracomment>The menu item that makes a stopwatch a timer that counts down.</extracomment>
        <translation>Minutnik</translation>
    </message>
    <message>
        <source>More Options</source>
        <extracomment>Opens the drawer with more options of a timer.</extracomment>
        <translation>Więcej opcji</translation>
    </message>
    <message>
        <source>Hide Options</source>
        <extracomment>Closes the drawer with more options of a timer.</extracomment>
        <translation>Ukryj opcje</translation>
    </message>
    <message>
        <source>%1 - %2</source>
        <extracomment>A line of a list: the name of a timer and a time, such as “Tea - 0h 5m 0s”.</extracomment>
        <translation>%1 – %2</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>The name of a timer and what its display shows, such as “Tea: 5m 3s”.</extracomment>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>Wuffer</name>
    <message>
        <source>Display</source>
        <extracomment>Accessible name: the part of the window that shows the time.</extracomment>
        <translation>Wyświetlacz</translation>
    </message>
    <message>
        <source>The name of this timer</source>
        <translation>Nazwa tego minutnika</translation>
    </message>
    <message>
        <source>Name</source>
        <extracomment>Accessible name: the name of the timer.</extracomment>
        <translation>Nazwa</translation>
    </message>
    <message>
        <source>Name on the full screen</source>
        <extracomment>Accessible name: the name of the timer.</extracomment>
        <translation>Nazwa na pełnym ekranie</translation>
    </message>
    <message>
        <source>Time</source>
        <extracomment>Accessible name: the time that the timer shows.</extracomment>
        <translation>Czas</translation>
    </message>
    <message>
        <source>Elapsed time</source>
        <translation>Czas, który upłynął</translation>
    </message>
    <message>
        <source>Milliseconds</source>
        <translation>Milisekundy</translation>
    </message>
    <message>
        <source>Hours</source>
        <translation>Godziny</translation>
    </message>
    <message>
        <source>h&amp;ours</source>
        <extracomment>Stands after a number field, with those for minutes and seconds in one line.</extracomment>
        <translation>&amp;godz.</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>Minuty</translation>
    </message>
    <message>
        <source>&amp;minutes</source>
        <translation>m&amp;in</translation>
    </message>
    <message>
        <source>Seconds</source>
        <translation>Sekundy</translation>
    </message>
    <message>
        <source>&amp;seconds</source>
        <translation>s&amp;ek.</translation>
    </message>
    <message>
        <source>&amp;Keep wuffing</source>
        <extracomment>A check box: the alarm goes on until the user stops it. The program&apos;s alarm is the bark of a dog, “wuff”.</extracomment>
        <translation>Szczekaj &amp;dalej</translation>
    </message>
    <message>
        <source>Fill the screen when the countdown starts; any key or click ends it</source>
        <translation>Wypełnia ekran po rozpoczęciu odliczania; kończy to dowolny klawisz lub kliknięcie</translation>
    </message>
    <message>
        <source>Fu&amp;ll screen</source>
        <extracomment>A check box.</extracomment>
        <translation>Pełny ek&amp;ran</translation>
    </message>
    <message>
        <source>Options</source>
        <extracomment>Accessible name: the drawer with more options of a timer.</extracomment>
        <translation>Opcje</translation>
    </message>
    <message>
        <source>When fi&amp;nished:</source>
        <extracomment>Stands before the list of finish actions.</extracomment>
        <translation>Po &amp;zakończeniu:</translation>
    </message>
    <message>
        <source>What happens when the countdown has ended and its alarm is over</source>
        <translation>Co się stanie po zakończeniu odliczania i alarmu</translation>
    </message>
    <message>
        <source>When finished</source>
        <translation>Po zakończeniu</translation>
    </message>
    <message>
        <source>What can happen when the countdown ends</source>
        <translation>Co może się stać po zakończeniu odliczania</translation>
    </message>
    <message>
        <source>Help on finish actions</source>
        <translation>Pomoc na temat czynności po zakończeniu</translation>
    </message>
    <message>
        <source>What the finish action starts</source>
        <extracomment>Accessible name of the list of presets, or of the linked timer.</extracomment>
        <translation>Co zostanie uruchomione po zakończeniu</translation>
    </message>
    <message>
        <source>Choose from the open timers</source>
        <translation>Wybierz spośród otwartych minutników</translation>
    </message>
    <message>
        <source>Choose the timer to start</source>
        <translation>Wybierz minutnik do uruchomienia</translation>
    </message>
    <message>
        <source>&amp;Alarm:</source>
        <extracomment>Stands before the list of sounds.</extracomment>
        <translation>&amp;Alarm:</translation>
    </message>
    <message>
        <source>Alarm sound</source>
        <translation>Dźwięk alarmu</translation>
    </message>
    <message>
        <source>Play the alarm sound</source>
        <translation>Odtwórz dźwięk alarmu</translation>
    </message>
    <message>
        <source>Stop the alarm sound</source>
        <translation>Zatrzymaj dźwięk alarmu</translation>
    </message>
    <message>
        <source>&amp;Countdown:</source>
        <extracomment>Stands before the list of sounds for the last seconds of a countdown.</extracomment>
        <translation>Od&amp;liczanie:</translation>
    </message>
    <message>
        <source>Countdown sound</source>
        <translation>Dźwięk odliczania</translation>
    </message>
    <message>
        <source>Play the countdown sound</source>
        <translation>Odtwórz dźwięk odliczania</translation>
    </message>
    <message>
        <source>Stop the countdown sound</source>
        <translation>Zatrzymaj dźwięk odliczania</translation>
    </message>
    <message>
        <source>Elapsed: %1</source>
        <extracomment>The time since the start of a timer.</extracomment>
        <translation>Upłynęło: %1</translation>
    </message>
    <message>
        <source>Ready when you are</source>
        <translation>Gotowy do startu</translation>
    </message>
    <message>
        <source>The preset that this timer turns into and runs when it has finished</source>
        <translation>Szablon, który ten minutnik wczyta i uruchomi po zakończeniu</translation>
    </message>
    <message>
        <source>Control-Drag a Wuffer</source>
        <extracomment>In place of the name of the timer to start: how to choose one.</extracomment>
        <translation>Przeciągnij minutnik z Ctrl</translation>
    </message>
    <message>
        <source>When finished, this timer starts “%1”</source>
        <translation>Po zakończeniu ten minutnik uruchomi „%1”</translation>
    </message>
    <message>
        <source>Hold Control and drag the window of another timer onto this one: it starts when this one has finished</source>
        <translation>Przytrzymaj Ctrl i przeciągnij okno innego minutnika na to okno: tamten uruchomi się, gdy ten skończy</translation>
    </message>
    <message>
        <source>Sound is off</source>
        <translation>Dźwięk jest wyłączony</translation>
    </message>
    <message>
        <source>Sound is on</source>
        <translation>Dźwięk jest włączony</translation>
    </message>
    <message>
        <source>Let all timers be heard again</source>
        <translation>Wyłącz wyciszenie wszystkich minutników</translation>
    </message>
    <message>
        <source>Mute all timers</source>
        <translation>Wycisz wszystkie minutniki</translation>
    </message>
    <message>
        <source>A timer fills the screen</source>
        <translation>Minutnik wypełnia ekran</translation>
    </message>
</context>
<context>
    <name>WufferController</name>
    <message>
        <source>Preferences</source>
        <translation>Preferencje</translation>
    </message>
    <message>
        <source>Converter</source>
        <translation>Przelicznik</translation>
    </message>
    <message>
        <source>Measurements</source>
        <translation>Tabela miar</translation>
    </message>
    <message>
        <source>Wuffer Help</source>
        <translation>Pomoc programu Wuffer</translation>
    </message>
</context>
</TS>
