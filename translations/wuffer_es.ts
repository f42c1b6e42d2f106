<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>About</name>
    <message>
        <source>About Wuffer</source>
        <translation>Acerca de Wuffer</translation>
    </message>
    <message>
        <source>Countdown timers for the desktop</source>
        <translation>Temporizadores de cuenta atrás para el escritorio</translation>
    </message>
    <message>
        <source>Copyright © 2026 The Wuffer developers
Free software under the MIT License: use it, change it
and pass it on. It comes without any warranty.</source>
        <translation>Copyright © 2026 The Wuffer developers
Software libre con la licencia MIT: se puede usar, modificar
y redistribuir. Se ofrece sin garantía alguna.</translation>
    </message>
    <message>
        <source>Libraries and their licenses</source>
        <translation>Bibliotecas y sus licencias</translation>
    </message>
</context>
<context>
    <name>AboutDialog</name>
    <message>
        <source>sound output</source>
        <extracomment>What a library is used for.</extracomment>
        <translation>salida de sonido</translation>
    </message>
    <message>
        <source>sound files</source>
        <translation>archivos de sonido</translation>
    </message>
    <message>
        <source>MP3 files</source>
        <translation>archivos MP3</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Versión %1</translation>
    </message>
    <message>
        <source>windows</source>
        <extracomment>What a library is used for.</extracomment>
        <translation>ventanas</translation>
    </message>
    <message>
        <source>X Window System</source>
        <translation>X Window System</translation>
    </message>
    <message>
        <source>windows, session bus</source>
        <extracomment>What a library is used for.</extracomment>
        <translation>ventanas, bus de sesión</translation>
    </message>
</context>
<context>
    <name>AlarmAnnouncement</name>
    <message>
        <source>Alarm ended</source>
        <extracomment>Screen readers say it after the name of a timer.</extracomment>
        <translation>Alarma terminada</translation>
    </message>
</context>
<context>
    <name>Chain</name>
    <message>
        <source>Wuffer Chain - %1 of %2</source>
        <extracomment>The place of a timer in a chain: position and number of timers.</extracomment>
        <translation>Cadena Wuffer - %1 de %2</translation>
    </message>
    <message>
        <source>Started by “%1”</source>
        <extracomment>Names of timers.</extracomment>
        <translation>Iniciado por «%1»</translation>
    </message>
    <message>
        <source>Starts “%1”</source>
        <translation>Inicia «%1»</translation>
    </message>
    <message>
        <source>Started by “%1”; starts “%2”</source>
        <translation>Iniciado por «%1»; inicia «%2»</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Countdown timers for the desktop. If the program is already running, it carries out what is asked for here.</source>
        <translation>Temporizadores de cuenta atrás para el escritorio. Si el programa ya está en marcha, es este el que lleva a cabo lo que aquí se pide.</translation>
    </message>
    <message>
        <source>Wait for the session bus to say what to open.</source>
        <translation>Esperar a que el bus de sesión diga qué abrir.</translation>
    </message>
    <message>
        <source>Show this help.</source>
        <translation>Mostrar esta ayuda.</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>Mostrar la versión.</translation>
    </message>
    <message>
        <source>Unexpected argument “%1”.</source>
        <translation>No se sabe qué hacer con «%1».</translation>
    </message>
    <message>
        <source>Open a new timer.</source>
        <translation>Abrir un nuevo temporizador.</translation>
    </message>
    <message>
        <source>Start every timer.</source>
        <translation>Iniciar todos los temporizadores.</translation>
    </message>
    <message>
        <source>Show the preferences.</source>
        <translation>Mostrar las preferencias.</translation>
    </message>
    <message>
        <source>Show the unit converter.</source>
        <translation>Mostrar el conversor de unidades.</translation>
    </message>
</context>
<context>
    <name>Converter</name>
    <message>
        <source>Volume (US measures)</source>
        <translation>Volumen (medidas de EE.&#xa0;UU.)</translation>
    </message>
    <message>
        <source>&amp;Milliliters:</source>
        <translation>&amp;Mililitros:</translation>
    </message>
    <message>
        <source>Milliliters</source>
        <translation>Mililitros</translation>
    </message>
    <message>
        <source>F&amp;luid ounces:</source>
        <translation>Onzas &amp;líquidas:</translation>
    </message>
    <message>
        <source>Fluid ounces</source>
        <translation>Onzas líquidas</translation>
    </message>
    <message>
        <source>&amp;Cups:</source>
        <translation>Ta&amp;zas:</translation>
    </message>
    <message>
        <source>Cups</source>
        <translation>Tazas</translation>
    </message>
    <message>
        <source>Ta&amp;blespoons:</source>
        <translation>C&amp;ucharadas:</translation>
    </message>
    <message>
        <source>Tablespoons</source>
        <translation>Cucharadas</translation>
    </message>
    <message>
        <source>T&amp;easpoons:</source>
        <translation>Cucharad&amp;itas:</translation>
    </message>
    <message>
        <source>Teaspoons</source>
        <translation>Cucharaditas</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Peso</translation>
    </message>
    <message>
        <source>&amp;Grams:</source>
        <translation>&amp;Gramos:</translation>
    </message>
    <message>
        <source>Grams</source>
        <translation>Gramos</translation>
    </message>
    <message>
        <source>&amp;Ounces:</source>
        <translation>&amp;Onzas:</translation>
    </message>
    <message>
        <source>Ounces</source>
        <translation>Onzas</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatura</translation>
    </message>
    <message>
        <source>Cel&amp;sius:</source>
        <translation>&amp;Celsius:</translation>
    </message>
    <message>
        <source>Celsius</source>
        <translation>Celsius</translation>
    </message>
    <message>
        <source>Fah&amp;renheit:</source>
        <translation>&amp;Fahrenheit:</translation>
    </message>
    <message>
        <source>Fahrenheit</source>
        <translation>Fahrenheit</translation>
    </message>
</context>
<context>
    <name>FinishActions</name>
    <message>
        <source>Do Nothing</source>
        <translation>No hacer nada</translation>
    </message>
    <message>
        <source>Loop this Wuffer</source>
        <translation>Repetir este temporizador</translation>
    </message>
    <message>
        <source>Start a Preset</source>
        <translation>Iniciar un preajuste</translation>
    </message>
    <message>
        <source>Start other open Wuffer</source>
        <translation>Iniciar otro temporizador abierto</translation>
    </message>
</context>
<context>
    <name>FreedesktopNotifications</name>
    <message>
        <source>Show</source>
        <extracomment>A button of a notification: brings the timer to the front.</extracomment>
        <translation>Mostrar</translation>
    </message>
    <message>
        <source>Stop</source>
        <extracomment>A button of a notification: ends the alarm.</extracomment>
        <translation>Detener</translation>
    </message>
</context>
<context>
    <name>GatheredNotifications</name>
    <message numerus="yes">
        <source>%n timers have ended</source>
        <translation>
            <numerusform>Ha terminado %n temporizador</numerusform>
            <numerusform>Han terminado %n temporizadores</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>y %n más</numerusform>
            <numerusform>y %n más</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Help</name>
    <message>
        <source>Back</source>
        <extracomment>Goes to the page of the help that was shown before.</extracomment>
        <translation>Atrás</translation>
    </message>
    <message>
        <source>Forward</source>
        <extracomment>Goes to the page of the help that was shown after this one.</extracomment>
        <translation>Adelante</translation>
    </message>
    <message>
        <source>Search the help</source>
        <translation>Buscar en la ayuda</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Pages</source>
        <extracomment>Accessible name of the list of pages.</extracomment>
        <translation>Páginas</translation>
    </message>
</context>
<context>
    <name>HelpPages</name>
    <message>
        <source>en</source>
        <extracomment>The folder with the help pages in your language, such as &quot;de&quot;. Leave &quot;en&quot; if there is none.</extracomment>
        <translation>es</translation>
    </message>
    <message>
        <source>%1 menu</source>
        <extracomment>The title of a table of keys; %1 is the name of a menu.</extracomment>
        <translation>Menú %1</translation>
    </message>
    <message>
        <source>This help is available in English only.</source>
        <extracomment>Stands above the pages of the help in languages that the help is not translated to.</extracomment>
        <translation>Esta ayuda solo está disponible en inglés.</translation>
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
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>Found: %1</source>
        <translation>Resultados: %1</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>Sin resultados</translation>
    </message>
</context>
<context>
    <name>Home</name>
    <message>
        <source>New Timer</source>
        <translation>Nuevo temporizador</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>Preajustes</translation>
    </message>
</context>
<context>
    <name>KeepOnTopItem</name>
    <message>
        <source>Keep on &amp;Top</source>
        <translation>Siempre &amp;encima</translation>
    </message>
</context>
<context>
    <name>KeepWuffing</name>
    <message>
        <source>A stopwatch has no alarm that could go on</source>
        <translation>Un cronómetro no tiene ninguna alarma que pueda repetirse</translation>
    </message>
    <message>
        <source>Only a timer that is to “%1” when finished can go on wuffing</source>
        <extracomment>%1 is the finish action “Do Nothing”.</extracomment>
        <translation>Solo puede seguir ladrando un temporizador cuya acción final sea «%1»</translation>
    </message>
    <message>
        <source>The sound of all timers is off</source>
        <translation>El sonido de todos los temporizadores está desactivado</translation>
    </message>
    <message>
        <source>Repeat the alarm sound until you press %1</source>
        <extracomment>%1 is the title of the button “Reset”.</extracomment>
        <translation>Repetir el sonido de alarma hasta que se pulse «%1»</translation>
    </message>
</context>
<context>
    <name>LaunchChoices</name>
    <message>
        <source>Open a Wuffer</source>
        <translation>Abrir un temporizador</translation>
    </message>
    <message>
        <source>Do Nothing</source>
        <translation>No hacer nada</translation>
    </message>
    <message>
        <source>Open Preset ⌘1</source>
        <translation>Abrir el preajuste ⌘1</translation>
    </message>
    <message>
        <source>Open and Start Preset ⌘1</source>
        <translation>Abrir e iniciar el preajuste ⌘1</translation>
    </message>
</context>
<context>
    <name>LinkMenu</name>
    <message>
        <source>When F&amp;inished, Start</source>
        <translation>Al &amp;terminar, iniciar</translation>
    </message>
    <message>
        <source>&amp;None</source>
        <translation>&amp;Ninguno</translation>
    </message>
    <message>
        <source>No &amp;Other Timer Is Open</source>
        <translation>No hay &amp;otro temporizador abierto</translation>
    </message>
</context>
<context>
    <name>MainMenu</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>&amp;New Timer</source>
        <translation>&amp;Nuevo temporizador</translation>
    </message>
    <message>
        <source>Start &amp;All</source>
        <translation>&amp;Iniciar todos</translation>
    </message>
    <message>
        <source>Mute All</source>
        <translation>Silenciar todos</translation>
    </message>
    <message>
        <source>&amp;Preferences…</source>
        <translation>&amp;Preferencias…</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Cerrar</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>&amp;Timer</source>
        <translation>&amp;Temporizador</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Iniciar</translation>
    </message>
    <message>
        <source>Re&amp;name</source>
        <translation>Cambiar &amp;nombre</translation>
    </message>
    <message>
        <source>Stopwatch</source>
        <translation>Cronómetro</translation>
    </message>
    <message>
        <source>Count Down to a &amp;Date…</source>
        <translation>Cuenta atrás hasta una &amp;fecha…</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>&amp;Restablecer</translation>
    </message>
    <message>
        <source>&amp;Keep Wuffing</source>
        <translation>Seguir &amp;ladrando</translation>
    </message>
    <message>
        <source>&amp;Full Screen</source>
        <translation>&amp;Pantalla completa</translation>
    </message>
    <message>
        <source>More Options</source>
        <translation>Más opciones</translation>
    </message>
    <message>
        <source>&amp;Window</source>
        <translation>&amp;Ventana</translation>
    </message>
    <message>
        <source>&amp;Minimize</source>
        <translation>&amp;Minimizar</translation>
    </message>
    <message>
        <source>&amp;Converter</source>
        <translation>&amp;Conversor</translation>
    </message>
    <message>
        <source>M&amp;easurements</source>
        <translation>Me&amp;didas</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;yuda</translation>
    </message>
    <message>
        <source>Wuffer &amp;Help</source>
        <translation>&amp;Ayuda de Wuffer</translation>
    </message>
    <message>
        <source>Wuffer on the &amp;Web</source>
        <translation>Wuffer en la &amp;web</translation>
    </message>
    <message>
        <source>&amp;About Wuffer</source>
        <translation>A&amp;cerca de Wuffer</translation>
    </message>
</context>
<context>
    <name>MeasurementsPanel</name>
    <message>
        <source>Kitchen measurements</source>
        <translation>Medidas de cocina</translation>
    </message>
    <message>
        <source>1 teaspoon|1 tsp|⅓ tbsp|⅙ fl oz|4.93 mL</source>
        <translation>1 cucharadita|1 cdta.|⅓ cda.|⅙ fl oz|4.93 ml</translation>
    </message>
    <message>
        <source>1 tablespoon|3 tsp|1 tbsp|½ fl oz|14.79 mL</source>
        <translation>1 cucharada|3 cdtas.|1 cda.|½ fl oz|14.79 ml</translation>
    </message>
    <message>
        <source>1 fluid ounce|6 tsp|2 tbsp|1 fl oz|29.57 mL</source>
        <translation>1 onza líquida|6 cdtas.|2 cdas.|1 fl oz|29.57 ml</translation>
    </message>
    <message>
        <source>¼ cup|12 tsp|4 tbsp|2 fl oz|59.15 mL</source>
        <translation>¼ de taza|12 cdtas.|4 cdas.|2 fl oz|59.15 ml</translation>
    </message>
    <message>
        <source>⅓ cup|16 tsp|5⅓ tbsp|2⅔ fl oz|78.86 mL</source>
        <translation>⅓ de taza|16 cdtas.|5⅓ cdas.|2⅔ fl oz|78.86 ml</translation>
    </message>
    <message>
        <source>½ cup|24 tsp|8 tbsp|4 fl oz|118.29 mL</source>
        <translation>½ taza|24 cdtas.|8 cdas.|4 fl oz|118.29 ml</translation>
    </message>
    <message>
        <source>⅔ cup|32 tsp|10⅔ tbsp|5⅓ fl oz|157.73 mL</source>
        <translation>⅔ de taza|32 cdtas.|10⅔ cdas.|5⅓ fl oz|157.73 ml</translation>
    </message>
    <message>
        <source>¾ cup|36 tsp|12 tbsp|6 fl oz|177.44 mL</source>
        <translation>¾ de taza|36 cdtas.|12 cdas.|6 fl oz|177.44 ml</translation>
    </message>
    <message>
        <source>1 cup|48 tsp|16 tbsp|8 fl oz|236.59 mL</source>
        <translation>1 taza|48 cdtas.|16 cdas.|8 fl oz|236.59 ml</translation>
    </message>
    <message>
        <source>1 pint|96 tsp|32 tbsp|16 fl oz|473.18 mL</source>
        <translation>1 pinta|96 cdtas.|32 cdas.|16 fl oz|473.18 ml</translation>
    </message>
    <message>
        <source>1 quart|192 tsp|64 tbsp|32 fl oz|946.35 mL</source>
        <translation>1 cuarto de galón|192 cdtas.|64 cdas.|32 fl oz|946.35 ml</translation>
    </message>
    <message>
        <source>1 gallon|768 tsp|256 tbsp|128 fl oz|3785.41 mL</source>
        <translation>1 galón|768 cdtas.|256 cdas.|128 fl oz|3785.41 ml</translation>
    </message>
    <message>
        <source>1 metric teaspoon|0.17 fl oz|5 mL</source>
        <translation>1 cucharadita métrica|0.17 fl oz|5 ml</translation>
    </message>
    <message>
        <source>1 metric tablespoon|0.51 fl oz|15 mL</source>
        <translation>1 cucharada métrica|0.51 fl oz|15 ml</translation>
    </message>
    <message>
        <source>1 Australian tablespoon|0.68 fl oz|20 mL</source>
        <translation>1 cucharada australiana|0.68 fl oz|20 ml</translation>
    </message>
    <message>
        <source>1 Japanese cup|6.76 fl oz|200 mL</source>
        <translation>1 taza japonesa|6.76 fl oz|200 ml</translation>
    </message>
    <message>
        <source>1 metric cup|8.45 fl oz|250 mL</source>
        <translation>1 taza métrica|8.45 fl oz|250 ml</translation>
    </message>
    <message>
        <source>1 liter|33.81 fl oz|1000 mL</source>
        <translation>1 litro|33.81 fl oz|1000 ml</translation>
    </message>
    <message>
        <source>1 UK fluid ounce|0.96 fl oz|28.41 mL</source>
        <translation>1 onza líquida británica|0.96 fl oz|28.41 ml</translation>
    </message>
    <message>
        <source>1 UK pint|19.22 fl oz|568.26 mL</source>
        <translation>1 pinta británica|19.22 fl oz|568.26 ml</translation>
    </message>
    <message>
        <source>1 UK quart|38.43 fl oz|1136.52 mL</source>
        <translation>1 cuarto de galón británico|38.43 fl oz|1136.52 ml</translation>
    </message>
    <message>
        <source>1 UK gallon|153.72 fl oz|4546.09 mL</source>
        <translation>1 galón británico|153.72 fl oz|4546.09 ml</translation>
    </message>
    <message>
        <source>1 ounce|1 oz|0.0625 lb|28.35 g</source>
        <translation>1 onza|1 oz|0.0625 lb|28.35 g</translation>
    </message>
    <message>
        <source>2 ounces|2 oz|0.125 lb|56.70 g</source>
        <translation>2 onzas|2 oz|0.125 lb|56.70 g</translation>
    </message>
    <message>
        <source>¼ pound|4 oz|0.25 lb|113.40 g</source>
        <translation>¼ de libra|4 oz|0.25 lb|113.40 g</translation>
    </message>
    <message>
        <source>½ pound|8 oz|0.5 lb|226.80 g</source>
        <translation>½ libra|8 oz|0.5 lb|226.80 g</translation>
    </message>
    <message>
        <source>¾ pound|12 oz|0.75 lb|340.19 g</source>
        <translation>¾ de libra|12 oz|0.75 lb|340.19 g</translation>
    </message>
    <message>
        <source>1 pound|16 oz|1 lb|453.59 g</source>
        <translation>1 libra|16 oz|1 lb|453.59 g</translation>
    </message>
    <message>
        <source>2 pounds|32 oz|2 lb|907.18 g</source>
        <translation>2 libras|32 oz|2 lb|907.18 g</translation>
    </message>
    <message>
        <source>50 grams|1.76 oz|0.110 lb|50 g</source>
        <translation>50 gramos|1.76 oz|0.110 lb|50 g</translation>
    </message>
    <message>
        <source>100 grams|3.53 oz|0.220 lb|100 g</source>
        <translation>100 gramos|3.53 oz|0.220 lb|100 g</translation>
    </message>
    <message>
        <source>250 grams|8.82 oz|0.551 lb|250 g</source>
        <translation>250 gramos|8.82 oz|0.551 lb|250 g</translation>
    </message>
    <message>
        <source>500 grams|17.64 oz|1.102 lb|500 g</source>
        <translation>500 gramos|17.64 oz|1.102 lb|500 g</translation>
    </message>
    <message>
        <source>1 kilogram|35.27 oz|2.205 lb|1000 g</source>
        <translation>1 kilogramo|35.27 oz|2.205 lb|1000 g</translation>
    </message>
    <message>
        <source>⅛ stick|1 tbsp|1⁄16 cup|½ oz|14.17 g</source>
        <translation>⅛ de barra|1 cda.|1⁄16 de taza|½ oz|14.17 g</translation>
    </message>
    <message>
        <source>¼ stick|2 tbsp|⅛ cup|1 oz|28.35 g</source>
        <translation>¼ de barra|2 cdas.|⅛ de taza|1 oz|28.35 g</translation>
    </message>
    <message>
        <source>½ stick|4 tbsp|¼ cup|2 oz|56.70 g</source>
        <translation>½ barra|4 cdas.|¼ de taza|2 oz|56.70 g</translation>
    </message>
    <message>
        <source>1 stick|8 tbsp|½ cup|4 oz|113.40 g</source>
        <translation>1 barra|8 cdas.|½ taza|4 oz|113.40 g</translation>
    </message>
    <message>
        <source>2 sticks|16 tbsp|1 cup|8 oz|226.80 g</source>
        <translation>2 barras|16 cdas.|1 taza|8 oz|226.80 g</translation>
    </message>
    <message>
        <source>4 sticks|32 tbsp|2 cups|16 oz|453.59 g</source>
        <translation>4 barras|32 cdas.|2 tazas|16 oz|453.59 g</translation>
    </message>
    <message>
        <source>Very cool|Gas ¼|225 °F|107 °C|110 °C</source>
        <translation>Muy bajo|Gas ¼|225 °F|107 °C|110 °C</translation>
    </message>
    <message>
        <source>Very cool|Gas ½|250 °F|121 °C|120 °C</source>
        <translation>Muy bajo|Gas ½|250 °F|121 °C|120 °C</translation>
    </message>
    <message>
        <source>Cool|Gas 1|275 °F|135 °C|140 °C</source>
        <translation>Bajo|Gas 1|275 °F|135 °C|140 °C</translation>
    </message>
    <message>
        <source>Cool|Gas 2|300 °F|149 °C|150 °C</source>
        <translation>Bajo|Gas 2|300 °F|149 °C|150 °C</translation>
    </message>
    <message>
        <source>Warm|Gas 3|325 °F|163 °C|160 °C</source>
        <translation>Medio bajo|Gas 3|325 °F|163 °C|160 °C</translation>
    </message>
    <message>
        <source>Moderate|Gas 4|350 °F|177 °C|180 °C</source>
        <translation>Medio|Gas 4|350 °F|177 °C|180 °C</translation>
    </message>
    <message>
        <source>Fairly hot|Gas 5|375 °F|191 °C|190 °C</source>
        <translation>Medio alto|Gas 5|375 °F|191 °C|190 °C</translation>
    </message>
    <message>
        <source>Fairly hot|Gas 6|400 °F|204 °C|200 °C</source>
        <translation>Medio alto|Gas 6|400 °F|204 °C|200 °C</translation>
    </message>
    <message>
        <source>Hot|Gas 7|425 °F|218 °C|220 °C</source>
        <translation>Alto|Gas 7|425 °F|218 °C|220 °C</translation>
    </message>
    <message>
        <source>Very hot|Gas 8|450 °F|232 °C|230 °C</source>
        <translation>Muy alto|Gas 8|450 °F|232 °C|230 °C</translation>
    </message>
    <message>
        <source>Very hot|Gas 9|475 °F|246 °C|250 °C</source>
        <translation>Muy alto|Gas 9|475 °F|246 °C|250 °C</translation>
    </message>
    <message>
        <source>Teaspoons to milliliters|× 4.929</source>
        <translation>De cucharaditas a mililitros|× 4.929</translation>
    </message>
    <message>
        <source>Tablespoons to milliliters|× 14.79</source>
        <translation>De cucharadas a mililitros|× 14.79</translation>
    </message>
    <message>
        <source>Fluid ounces to milliliters|× 29.57</source>
        <translation>De onzas líquidas a mililitros|× 29.57</translation>
    </message>
    <message>
        <source>Cups to milliliters|× 236.6</source>
        <translation>De tazas a mililitros|× 236.6</translation>
    </message>
    <message>
        <source>Milliliters to fluid ounces|× 0.03381</source>
        <translation>De mililitros a onzas líquidas|× 0.03381</translation>
    </message>
    <message>
        <source>Quarts to liters|× 0.9464</source>
        <translation>De cuartos de galón a litros|× 0.9464</translation>
    </message>
    <message>
        <source>Liters to quarts|× 1.057</source>
        <translation>De litros a cuartos de galón|× 1.057</translation>
    </message>
    <message>
        <source>Ounces to grams|× 28.35</source>
        <translation>De onzas a gramos|× 28.35</translation>
    </message>
    <message>
        <source>Grams to ounces|× 0.03527</source>
        <translation>De gramos a onzas|× 0.03527</translation>
    </message>
    <message>
        <source>Pounds to kilograms|× 0.4536</source>
        <translation>De libras a kilogramos|× 0.4536</translation>
    </message>
    <message>
        <source>Kilograms to pounds|× 2.205</source>
        <translation>De kilogramos a libras|× 2.205</translation>
    </message>
    <message>
        <source>Inches to centimeters|× 2.54</source>
        <translation>De pulgadas a centímetros|× 2.54</translation>
    </message>
    <message>
        <source>Centimeters to inches|× 0.3937</source>
        <translation>De centímetros a pulgadas|× 0.3937</translation>
    </message>
    <message>
        <source>Celsius to Fahrenheit|× 1.8, then + 32</source>
        <translation>De Celsius a Fahrenheit|× 1.8, luego + 32</translation>
    </message>
    <message>
        <source>Fahrenheit to Celsius|− 32, then ÷ 1.8</source>
        <translation>De Fahrenheit a Celsius|− 32, luego ÷ 1.8</translation>
    </message>
    <message>
        <source>Volume, US measures</source>
        <translation>Volumen, medidas de EE.&#xa0;UU.</translation>
    </message>
    <message>
        <source>Measure|Teaspoons|Tablespoons|Fluid ounces|Milliliters</source>
        <translation>Medida|Cucharaditas|Cucharadas|Onzas líquidas|Mililitros</translation>
    </message>
    <message>
        <source>Volume, other measures</source>
        <translation>Volumen, otras medidas</translation>
    </message>
    <message>
        <source>Measure|US fluid ounces|Milliliters</source>
        <translation>Medida|Onzas líquidas de EE.&#xa0;UU.|Mililitros</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Peso</translation>
    </message>
    <message>
        <source>Weight|Ounces|Pounds|Grams</source>
        <translation>Peso|Onzas|Libras|Gramos</translation>
    </message>
    <message>
        <source>Butter, US sticks</source>
        <translation>Mantequilla, barras de EE.&#xa0;UU.</translation>
    </message>
    <message>
        <source>Butter|Tablespoons|Cups|Ounces|Grams</source>
        <translation>Mantequilla|Cucharadas|Tazas|Onzas|Gramos</translation>
    </message>
    <message>
        <source>Oven temperatures</source>
        <translation>Temperaturas del horno</translation>
    </message>
    <message>
        <source>Heat|Gas mark|Fahrenheit|Celsius|On the dial</source>
        <translation>Calor|Marca de gas|Fahrenheit|Celsius|En el mando</translation>
    </message>
    <message>
        <source>Common conversions</source>
        <translation>Conversiones habituales</translation>
    </message>
    <message>
        <source>Conversion|Calculation</source>
        <translation>Conversión|Cálculo</translation>
    </message>
</context>
<context>
    <name>Preferences</name>
    <message>
        <source>Preferences</source>
        <translation>Preferencias</translation>
    </message>
    <message>
        <source>&amp;General</source>
        <extracomment>The title of a page.</extracomment>
        <translation>&amp;General</translation>
    </message>
    <message>
        <source>At &amp;launch:</source>
        <extracomment>Stands before the list of what opens when the program starts.</extracomment>
        <translation>Al a&amp;rrancar:</translation>
    </message>
    <message>
        <source>What opens when the program starts</source>
        <translation>Lo que se abre al arrancar el programa</translation>
    </message>
    <message>
        <source>At launch</source>
        <translation>Al arrancar</translation>
    </message>
    <message>
        <source>Finished te&amp;xt:</source>
        <extracomment>Stands before the text that timers show at their end.</extracomment>
        <translation>Te&amp;xto final:</translation>
    </message>
    <message>
        <source>What a timer says when its countdown has ended</source>
        <translation>Lo que dice un temporizador al terminar su cuenta atrás</translation>
    </message>
    <message>
        <source>Finished text</source>
        <translation>Texto final</translation>
    </message>
    <message>
        <source>A timer that is opened from a preset starts at once</source>
        <translation>Un temporizador abierto desde un preajuste se inicia de inmediato</translation>
    </message>
    <message>
        <source>Start presets when they are &amp;opened</source>
        <translation>&amp;Iniciar los preajustes al abrirlos</translation>
    </message>
    <message>
        <source>The desktop does not tell of countdowns that have ended</source>
        <translation>El escritorio no avisa de las cuentas atrás que han terminado</translation>
    </message>
    <message>
        <source>Turn off &amp;notifications</source>
        <translation>Desactivar las &amp;notificaciones</translation>
    </message>
    <message>
        <source>Running timers do not show in the panel of the desktop</source>
        <translation>Los temporizadores en marcha no aparecen en el panel del escritorio</translation>
    </message>
    <message>
        <source>Hide the status &amp;item</source>
        <extracomment>The item of the program in the panel of the desktop.</extracomment>
        <translation>&amp;Ocultar el indicador de estado</translation>
    </message>
    <message>
        <source>Timers refresh their display less often and show no milliseconds.
Beeps and the end of a countdown come up to 0.2 seconds late.</source>
        <translation>Los temporizadores actualizan su visor con menos frecuencia y no muestran milisegundos.
Los pitidos y el final de la cuenta atrás llegan hasta 0,2 segundos tarde.</translation>
    </message>
    <message>
        <source>&amp;Energy saver</source>
        <translation>Ahorro de &amp;energía</translation>
    </message>
    <message>
        <source>&amp;Sounds</source>
        <extracomment>The title of a page.</extracomment>
        <translation>&amp;Sonidos</translation>
    </message>
    <message>
        <source>No timer makes a sound</source>
        <translation>Ningún temporizador emite sonidos</translation>
    </message>
    <message>
        <source>&amp;Mute all timers</source>
        <translation>Si&amp;lenciar todos los temporizadores</translation>
    </message>
    <message>
        <source>The last seconds of a countdown pass in silence</source>
        <translation>Los últimos segundos de la cuenta atrás pasan en silencio</translation>
    </message>
    <message>
        <source>Turn off countdown &amp;beeps</source>
        <translation>&amp;Desactivar los pitidos de la cuenta atrás</translation>
    </message>
    <message>
        <source>&amp;Alarm:</source>
        <translation>Alar&amp;ma:</translation>
    </message>
    <message>
        <source>Alarm sound of new timers</source>
        <translation>Sonido de alarma de los nuevos temporizadores</translation>
    </message>
    <message>
        <source>Play the alarm sound</source>
        <translation>Reproducir el sonido de alarma</translation>
    </message>
    <message>
        <source>Stop the alarm sound</source>
        <translation>Detener el sonido de alarma</translation>
    </message>
    <message>
        <source>In use:</source>
        <extracomment>Stands before the name of a sound.</extracomment>
        <translation>En uso:</translation>
    </message>
    <message>
        <source>Alarm sound in use</source>
        <translation>Sonido de alarma en uso</translation>
    </message>
    <message>
        <source>Alarm sound that cannot be played</source>
        <translation>Sonido de alarma que no se puede reproducir</translation>
    </message>
    <message>
        <source>&amp;Countdown:</source>
        <translation>&amp;Cuenta atrás:</translation>
    </message>
    <message>
        <source>Countdown sound of new timers</source>
        <translation>Sonido de cuenta atrás de los nuevos temporizadores</translation>
    </message>
    <message>
        <source>Play the countdown sound</source>
        <translation>Reproducir el sonido de cuenta atrás</translation>
    </message>
    <message>
        <source>Stop the countdown sound</source>
        <translation>Detener el sonido de cuenta atrás</translation>
    </message>
    <message>
        <source>Countdown sound in use</source>
        <translation>Sonido de cuenta atrás en uso</translation>
    </message>
    <message>
        <source>Countdown sound that cannot be played</source>
        <translation>Sonido de cuenta atrás que no se puede reproducir</translation>
    </message>
    <message>
        <source>Timers opened from now on begin with these sounds. Each timer offers a choice of its own under More Options.</source>
        <translation>Los temporizadores que se abran a partir de ahora empezarán con estos sonidos. Cada temporizador permite elegir los suyos en «Más opciones».</translation>
    </message>
    <message>
        <source>Mute All</source>
        <translation>Silenciar todos</translation>
    </message>
    <message>
        <source>Unmute All</source>
        <translation>Reactivar el sonido</translation>
    </message>
    <message>
        <source>Select a sound file</source>
        <translation>Seleccionar un archivo de sonido</translation>
    </message>
    <message>
        <source>Unplayable:</source>
        <extracomment>Stands before the name of the file of a sound.</extracomment>
        <translation>No reproducible:</translation>
    </message>
    <message>
        <source>Missing:</source>
        <translation>No encontrado:</translation>
    </message>
    <message>
        <source>Running timers do not show in the panel</source>
        <extracomment>A line below “Hide the status item”; as short as possible.</extracomment>
        <translation>Los temporizadores en marcha no aparecen en el panel</translation>
    </message>
    <message>
        <source>No milliseconds; beeps and alarms up to 0.2 s late</source>
        <extracomment>A line below “Energy saver”; as short as possible.</extracomment>
        <translation>Sin milisegundos; los pitidos y las alarmas llegan hasta 0,2 segundos tarde</translation>
    </message>
</context>
<context>
    <name>Preset</name>
    <message>
        <source>Preset %1</source>
        <extracomment>In the display of a timer opened from a preset; %1 is its number.</extracomment>
        <translation>Preajuste %1</translation>
    </message>
    <message>
        <source>Saved to Preset %1</source>
        <extracomment>In the display of a timer saved into a preset; %1 is its number.</extracomment>
        <translation>Guardado en el preajuste %1</translation>
    </message>
</context>
<context>
    <name>PresetsMenu</name>
    <message>
        <source>&amp;Presets</source>
        <translation>&amp;Preajustes</translation>
    </message>
    <message>
        <source>Save Wuffer to Preset</source>
        <translation>Guardar en un preajuste</translation>
    </message>
    <message>
        <source>Shortcut: Hold Control and press a number key</source>
        <translation>Atajo: Control y una tecla numérica</translation>
    </message>
    <message>
        <source>⌘%1 (Overwrite %2)</source>
        <extracomment>The number of a preset, and the name and time in it, which saving replaces.</extracomment>
        <translation>⌘%1 (sobrescribir %2)</translation>
    </message>
</context>
<context>
    <name>SoundEntries</name>
    <message>
        <source>Wuff (Default)</source>
        <extracomment>A sound of the program: the bark of a dog.</extracomment>
        <translation>Wuff (predeterminado)</translation>
    </message>
    <message>
        <source>Crow (Default)</source>
        <extracomment>A sound of the program: the caw of a crow.</extracomment>
        <translation>Cuervo (predeterminado)</translation>
    </message>
    <message>
        <source>Select another sound...</source>
        <translation>Seleccionar otro sonido...</translation>
    </message>
    <message>
        <source>Clear custom sounds</source>
        <translation>Quitar los sonidos propios</translation>
    </message>
    <message>
        <source>Manage Sounds...</source>
        <translation>Gestionar sonidos...</translation>
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
        <translation>Fecha objetivo</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Calendario</translation>
    </message>
    <message>
        <source>Ring &amp;at:</source>
        <extracomment>Stands before the date and time at which a timer rings.</extracomment>
        <translation>S&amp;onará el:</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Fecha y hora</translation>
    </message>
    <message>
        <source>How long that is from now</source>
        <translation>Cuánto falta hasta entonces</translation>
    </message>
</context>
<context>
    <name>TargetTimeSheet</name>
    <message>
        <source>Previous month</source>
        <extracomment>Accessible name: the arrow of the calendar that turns one month back.</extracomment>
        <translation>Mes anterior</translation>
    </message>
    <message>
        <source>Next month</source>
        <extracomment>Accessible name: the arrow of the calendar that turns one month on.</extracomment>
        <translation>Mes siguiente</translation>
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
        <translation>ahora</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <extracomment>Two units of a time, the larger first: “4 h 12 min”.</extracomment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>in %1</source>
        <extracomment>The time that is left until a date: “in 4 h 12 min”.</extracomment>
        <translation>dentro de %1</translation>
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
        <translation>d día días dia dias</translation>
    </message>
    <message>
        <source>h hr hrs hour hours</source>
        <extracomment>The same for hours.</extracomment>
        <translation>h hr hrs hs hora horas</translation>
    </message>
    <message>
        <source>m min mins minute minutes</source>
        <extracomment>The same for minutes.</extracomment>
        <translation>m min mins minuto minutos</translation>
    </message>
    <message>
        <source>s sec secs second seconds</source>
        <extracomment>The same for seconds.</extracomment>
        <translation>s sg seg segs segundo segundos</translation>
    </message>
    <message>
        <source>and</source>
        <extracomment>The word between two units: “1 hour and 5 minutes”.</extracomment>
        <translation>y</translation>
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
        <translation>Iniciar</translation>
    </message>
    <message>
        <source>Stop</source>
        <extracomment>On the button and in the menu: stops the running timer.</extracomment>
        <translation>Detener</translation>
    </message>
    <message>
        <source>Reset</source>
        <extracomment>On the button and in the menu, during an alarm: ends the alarm.</extracomment>
        <translation>Restablecer</translation>
    </message>
    <message>
        <source>Start Chain</source>
        <extracomment>On the button and in the menu, at the first timer of a chain: runs the chain.</extracomment>
        <translation>Iniciar cadena</translation>
    </message>
    <message>
        <source>Chained</source>
        <extracomment>On the disabled button and in the menu: another timer starts this one.</extracomment>
        <translation>Encadenado</translation>
    </message>
    <message>
        <source>Stopwatch</source>
        <extracomment>A timer that counts up, and the menu item that makes a timer one.</extracomment>
        <translation>Cronómetro</translation>
    </message>
    <message>
        <source>Timer</source>
        <extracomment>The menu item that makes a stopwatch a timer that counts down.</extracomment>
        <translation>Temporizador</translation>
    </message>
    <message>
        <source>More Options</source>
        <extracomment>Opens the drawer with more options of a timer.</extracomment>
        <translation>Más opciones</translation>
    </message>
    <message>
        <source>Hide Options</source>
        <extracomment>Closes the drawer with more options of a timer.</extracomment>
        <translation>Ocultar opciones</translation>
    </message>
    <message>
        <source>%1 - %2</source>
        <extracomment>A line of a list: the name of a timer and a time, such as “Tea - 0h 5m 0s”.</extracomment>
        <translation>%1 - %2</translation>
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
        <translation>Visor</translation>
    </message>
    <message>
        <source>The name of this timer</source>
        <translation>El nombre de este temporizador</translation>
    </message>
    <message>
        <source>Name</source>
        <extracomment>Accessible name: the name of the timer.</extracomment>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Name on the full screen</source>
        <extracomment>Accessible name: the name of the timer.</extracomment>
        <translation>Nombre en la pantalla completa</translation>
    </message>
    <message>
        <source>Time</source>
        <extracomment>Accessible name: the time that the timer shows.</extracomment>
        <translation>Tiempo</translation>
    </message>
    <message>
        <source>Elapsed time</source>
        <translation>Tiempo transcurrido</translation>
    </message>
    <message>
        <source>Milliseconds</source>
        <translation>Milisegundos</translation>
    </message>
    <message>
        <source>Hours</source>
        <translation>Horas</translation>
    </message>
    <message>
        <source>h&amp;ours</source>
        <extracomment>Stands after a number field, with those for minutes and seconds in one line.</extracomment>
        <translation>&amp;horas</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>Minutos</translation>
    </message>
    <message>
        <source>&amp;minutes</source>
        <translation>&amp;minutos</translation>
    </message>
    <message>
        <source>Seconds</source>
        <translation>Segundos</translation>
    </message>
    <message>
        <source>&amp;seconds</source>
        <translation>&amp;segundos</translation>
    </message>
    <message>
        <source>&amp;Keep wuffing</source>
        <extracomment>A check box: the alarm goes on until the user stops it. The program&apos;s alarm is the bark of a dog, “wuff”.</extracomment>
        <translation>Seguir la&amp;drando</translation>
    </message>
    <message>
        <source>Fill the screen when the countdown starts; any key or click ends it</source>
        <translation>Ocupar toda la pantalla al empezar la cuenta atrás; se sale con cualquier tecla o clic</translation>
    </message>
    <message>
        <source>Fu&amp;ll screen</source>
        <extracomment>A check box.</extracomment>
        <translation>Pa&amp;ntalla completa</translation>
    </message>
    <message>
        <source>Options</source>
        <extracomment>Accessible name: the drawer with more options of a timer.</extracomment>
        <translation>Opciones</translation>
    </message>
    <message>
        <source>When fi&amp;nished:</source>
        <extracomment>Stands before the list of finish actions.</extracomment>
        <translation>Al te&amp;rminar:</translation>
    </message>
    <message>
        <source>What happens when the countdown has ended and its alarm is over</source>
        <translation>Lo que ocurre cuando han terminado la cuenta atrás y su alarma</translation>
    </message>
    <message>
        <source>When finished</source>
        <translation>Al terminar</translation>
    </message>
    <message>
        <source>What can happen when the countdown ends</source>
        <translation>Lo que puede ocurrir al terminar la cuenta atrás</translation>
    </message>
    <message>
        <source>Help on finish actions</source>
        <translation>Ayuda sobre las acciones finales</translation>
    </message>
    <message>
        <source>What the finish action starts</source>
        <extracomment>Accessible name of the list of presets, or of the linked timer.</extracomment>
        <translation>Lo que inicia la acción final</translation>
    </message>
    <message>
        <source>Choose from the open timers</source>
        <translation>Elegir entre los temporizadores abiertos</translation>
    </message>
    <message>
        <source>Choose the timer to start</source>
        <translation>Elegir el temporizador que se va a iniciar</translation>
    </message>
    <message>
        <source>&amp;Alarm:</source>
        <extracomment>Stands before the list of sounds.</extracomment>
        <translation>A&amp;larma:</translation>
    </message>
    <message>
        <source>Alarm sound</source>
        <translation>Sonido de alarma</translation>
    </message>
    <message>
        <source>Play the alarm sound</source>
        <translation>Reproducir el sonido de alarma</translation>
    </message>
    <message>
        <source>Stop the alarm sound</source>
        <translation>Detener el sonido de alarma</translation>
    </message>
    <message>
        <source>&amp;Countdown:</source>
        <extracomment>Stands before the list of sounds for the last seconds of a countdown.</extracomment>
        <translation>&amp;Cuenta atrás:</translation>
    </message>
    <message>
        <source>Countdown sound</source>
        <translation>Sonido de cuenta atrás</translation>
    </message>
    <message>
        <source>Play the countdown sound</source>
        <translation>Reproducir el sonido de cuenta atrás</translation>
    </message>
    <message>
        <source>Stop the countdown sound</source>
        <translation>Detener el sonido de cuenta atrás</translation>
    </message>
    <message>
        <source>Elapsed: %1</source>
        <extracomment>The time since the start of a timer.</extracomment>
        <translation>Transcurrido: %1</translation>
    </message>
    <message>
        <source>Ready when you are</source>
        <translation>Listo para empezar</translation>
    </message>
    <message>
        <source>The preset that this timer turns into and runs when it has finished</source>
        <translation>El preajuste que este temporizador adopta e inicia al terminar</translation>
    </message>
    <message>
        <source>Control-Drag a Wuffer</source>
        <extracomment>In place of the name of the timer to start: how to choose one.</extracomment>
        <translation>Arrastrar otro con Control</translation>
    </message>
    <message>
        <source>When finished, this timer starts “%1”</source>
        <translation>Al terminar, este temporizador inicia «%1»</translation>
    </message>
    <message>
        <source>Hold Control and drag the window of another timer onto this one: it starts when this one has finished</source>
        <translation>Con la tecla Control pulsada, arrastrar la ventana de otro temporizador hasta esta: se iniciará cuando este termine</translation>
    </message>
    <message>
        <source>Sound is off</source>
        <translation>El sonido está desactivado</translation>
    </message>
    <message>
        <source>Sound is on</source>
        <translation>El sonido está activado</translation>
    </message>
    <message>
        <source>Let all timers be heard again</source>
        <translation>Reactivar el sonido de todos los temporizadores</translation>
    </message>
    <message>
        <source>Mute all timers</source>
        <translation>Silenciar todos los temporizadores</translation>
    </message>
    <message>
        <source>A timer fills the screen</source>
        <translation>Un temporizador ocupa toda la pantalla</translation>
    </message>
</context>
<context>
    <name>WufferController</name>
    <message>
        <source>Preferences</source>
        <translation>Preferencias</translation>
    </message>
    <message>
        <source>Converter</source>
        <translation>Conversor</translation>
    </message>
    <message>
        <source>Measurements</source>
        <translation>Medidas</translation>
    </message>
    <message>
        <source>Wuffer Help</source>
        <translation>Ayuda de Wuffer</translation>
    </message>
</context>
</TS>
