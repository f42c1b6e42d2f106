<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en">
<context>
    <name>About</name>
    <message>
        <source>About Wuffer</source>
        <translation>Sobre o Wuffer</translation>
    </message>
    <message>
        <source>Countdown timers for the desktop</source>
        <translation>Temporizadores de contagem regressiva para o computador</translation>
    </message>
    <message>
        <source>Copyright © 2026 The Wuffer developers
Free software under the MIT License: use it, change it
and pass it on. It comes without any warranty.</source>
        <translation>Copyright © 2026 The Wuffer developers
Software livre sob a Licença MIT: use, modifique
e distribua à vontade. Sem qualquer garantia.</translation>
    </message>
    <message>
        <source>Libraries and their licenses</source>
        <translation>Bibliotecas e suas licenças</translation>
    </message>
</context>
<context>
    <name>AboutDialog</name>
    <message>
        <source>sound output</source>
        <extracomment>What a library is used for.</extracomment>
        <translation>saída de som</translation>
    </message>
    <message>
        <source>sound files</source>
        <translation>arquivos de som</translation>
    </message>
    <message>
        <source>MP3 files</source>
        <translation>arquivos MP3</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Versão %1</translation>
    </message>
    <message>
        <source>windows</source>
        <extracomment>What a library is used for.</extracomment>
        <translation>janelas</translation>
    </message>
    <message>
        <source>X Window System</source>
        <translation>X Window System</translation>
    </message>
    <message>
        <source>windows, session bus</source>
        <extracomment>What a library is used for.</extracomment>
        <translation>janelas, barramento de sessão</translation>
    </message>
</context>
<context>
    <name>AlarmAnnouncement</name>
    <message>
        <source>Alarm ended</source>
        <extracomment>Screen readers say it after the name of a timer.</extracomment>
        <translation>Alarme encerrado</translation>
    </message>
</context>
<context>
    <name>Chain</name>
    <message>
        <source>Wuffer Chain - %1 of %2</source>
        <extracomment>The place of a timer in a chain: position and number of timers.</extracomment>
        <translation>Cadeia - %1 de %2</translation>
    </message>
    <message>
        <source>Started by “%1”</source>
        <extracomment>Names of timers.</extracomment>
        <translation>Iniciado por “%1”</translation>
    </message>
    <message>
        <source>Starts “%1”</source>
        <translation>Inicia “%1”</translation>
    </message>
    <message>
        <source>Started by “%1”; starts “%2”</source>
        <translation>Iniciado por “%1”; inicia “%2”</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Countdown timers for the desktop. If the program is already running, it carries out what is asked for here.</source>
        <translation>Temporizadores de contagem regressiva para o computador. Se o programa já estiver em execução, é ele que atende ao que for pedido aqui.</translation>
    </message>
    <message>
        <source>Wait for the session bus to say what to open.</source>
        <translation>Espera o barramento de sessão dizer o que abrir.</translation>
    </message>
    <message>
        <source>Show this help.</source>
        <translation>Mostra esta ajuda.</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>Mostra a versão.</translation>
    </message>
    <message>
        <source>Unexpected argument “%1”.</source>
        <translation>Argumento inesperado: “%1”.</translation>
    </message>
    <message>
        <source>Open a new timer.</source>
        <translation>Abre um novo temporizador.</translation>
    </message>
    <message>
        <source>Start every timer.</source>
        <translation>Inicia todos os temporizadores.</translation>
    </message>
    <message>
        <source>Show the preferences.</source>
        <translation>Mostra as preferências.</translation>
    </message>
    <message>
        <source>Show the unit converter.</source>
        <translation>Mostra o conversor de unidades.</translation>
    </message>
</context>
<context>
    <name>Converter</name>
    <message>
        <source>Volume (US measures)</source>
        <translation>Volume (medidas dos EUA)</translation>
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
        <translation>Onças &amp;líquidas:</translation>
    </message>
    <message>
        <source>Fluid ounces</source>
        <translation>Onças líquidas</translation>
    </message>
    <message>
        <source>&amp;Cups:</source>
        <translation>&amp;Xícaras:</translation>
    </message>
    <message>
        <source>Cups</source>
        <translation>Xícaras</translation>
    </message>
    <message>
        <source>Ta&amp;blespoons:</source>
        <translation>Colheres de s&amp;opa:</translation>
    </message>
    <message>
        <source>Tablespoons</source>
        <translation>Colheres de sopa</translation>
    </message>
    <message>
        <source>T&amp;easpoons:</source>
        <translation>Colheres de c&amp;há:</translation>
    </message>
    <message>
        <source>Teaspoons</source>
        <translation>Colheres de chá</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Peso</translation>
    </message>
    <message>
        <source>&amp;Grams:</source>
        <translation>&amp;Gramas:</translation>
    </message>
    <message>
        <source>Grams</source>
        <translation>Gramas</translation>
    </message>
    <message>
        <source>&amp;Ounces:</source>
        <translation>O&amp;nças:</translation>
    </message>
    <message>
        <source>Ounces</source>
        <translation>Onças</translation>
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
        <translation>Fah&amp;renheit:</translation>
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
        <translation>Não fazer nada</translation>
    </message>
    <message>
        <source>Loop this Wuffer</source>
        <translation>Repetir este temporizador</translation>
    </message>
    <message>
        <source>Start a Preset</source>
        <translation>Iniciar uma predefinição</translation>
    </message>
    <message>
        <source>Start other open Wuffer</source>
        <translation>Iniciar outro temporizador</translation>
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
        <translation>Parar</translation>
    </message>
</context>
<context>
    <name>GatheredNotifications</name>
    <message numerus="yes">
        <source>%n timers have ended</source>
        <translation>
            <numerusform>%n temporizador terminou</numerusform>
            <numerusform>%n temporizadores terminaram</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>e mais %n</numerusform>
            <numerusform>e mais %n</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Help</name>
    <message>
        <source>Back</source>
        <extracomment>Goes to the page of the help that was shown before.</extracomment>
        <translation>Voltar</translation>
    </message>
    <message>
        <source>Forward</source>
        <extracomment>Goes to the page of the help that was shown after this one.</extracomment>
        <translation>Avançar</translation>
    </message>
    <message>
        <source>Search the help</source>
        <translation>Pesquisar na ajuda</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Pesquisar</translation>
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
        <translation>Esta ajuda está disponível apenas em inglês.</translation>
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
        <translation>Ocorrências: %1</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>Nada encontrado</translation>
    </message>
</context>
<context>
    <name>Home</name>
    <message>
        <source>New Timer</source>
        <translation>Novo temporizador</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>Predefinições</translation>
    </message>
</context>
<context>
    <name>KeepOnTopItem</name>
    <message>
        <source>Keep on &amp;Top</source>
        <translation>Sempre no &amp;topo</translation>
    </message>
</context>
<context>
    <name>KeepWuffing</name>
    <message>
        <source>A stopwatch has no alarm that could go on</source>
        <translation>Um cronômetro não tem alarme que possa se repetir</translation>
    </message>
    <message>
        <source>Only a timer that is to “%1” when finished can go on wuffing</source>
        <extracomment>%1 is the finish action “Do Nothing”.</extracomment>
        <translation>Só um temporizador definido para “%1” ao terminar pode latir sem parar</translation>
    </message>
    <message>
        <source>The sound of all timers is off</source>
        <translation>O som de todos os temporizadores está desligado</translation>
    </message>
    <message>
        <source>Repeat the alarm sound until you press %1</source>
        <extracomment>%1 is the title of the button “Reset”.</extracomment>
        <translation>Repete o som do alarme até você pressionar %1</translation>
    </message>
</context>
<context>
    <name>LaunchChoices</name>
    <message>
        <source>Open a Wuffer</source>
        <translation>Abrir um temporizador</translation>
    </message>
    <message>
        <source>Do Nothing</source>
        <translation>Não fazer nada</translation>
    </message>
    <message>
        <source>Open Preset ⌘1</source>
        <translation>Abrir a predefinição ⌘1</translation>
    </message>
    <message>
        <source>Open and Start Preset ⌘1</source>
        <translation>Abrir e iniciar a predefinição ⌘1</translation>
    </message>
</context>
<context>
    <name>LinkMenu</name>
    <message>
        <source>When F&amp;inished, Start</source>
        <translation>Ao terminar, &amp;iniciar</translation>
    </message>
    <message>
        <source>&amp;None</source>
        <translation>&amp;Nenhum</translation>
    </message>
    <message>
        <source>No &amp;Other Timer Is Open</source>
        <translation>Nenhum &amp;outro temporizador aberto</translation>
    </message>
</context>
<context>
    <name>MainMenu</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Arquivo</translation>
    </message>
    <message>
        <source>&amp;New Timer</source>
        <translation>&amp;Novo temporizador</translation>
    </message>
    <message>
        <source>Start &amp;All</source>
        <translation>Iniciar &amp;todos</translation>
    </message>
    <message>
        <source>Mute All</source>
        <translation>Silenciar todos</translation>
    </message>
    <message>
        <source>&amp;Preferences…</source>
        <translation>&amp;Preferências…</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fechar</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Sair</translation>
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
        <translation>Re&amp;nomear</translation>
    </message>
    <message>
        <source>Stopwatch</source>
        <translation>Cronômetro</translation>
    </message>
    <message>
        <source>Count Down to a &amp;Date…</source>
        <translation>Contar até uma &amp;data…</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>&amp;Redefinir</translation>
    </message>
    <message>
        <source>&amp;Keep Wuffing</source>
        <translation>&amp;Latir sem parar</translation>
    </message>
    <message>
        <source>&amp;Full Screen</source>
        <translation>Tela c&amp;heia</translation>
    </message>
    <message>
        <source>More Options</source>
        <translation>Mais opções</translation>
    </message>
    <message>
        <source>&amp;Window</source>
        <translation>&amp;Janela</translation>
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
        <translation>M&amp;edidas</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Aj&amp;uda</translation>
    </message>
    <message>
        <source>Wuffer &amp;Help</source>
        <translation>Aj&amp;uda do Wuffer</translation>
    </message>
    <message>
        <source>Wuffer on the &amp;Web</source>
        <translation>Wuffer na &amp;web</translation>
    </message>
    <message>
        <source>&amp;About Wuffer</source>
        <translation>&amp;Sobre o Wuffer</translation>
    </message>
</context>
<context>
    <name>MeasurementsPanel</name>
    <message>
        <source>Kitchen measurements</source>
        <translation>Medidas de cozinha</translation>
    </message>
    <message>
        <source>1 teaspoon|1 tsp|⅓ tbsp|⅙ fl oz|4.93 mL</source>
        <translation>1 colher de chá|1 c. chá|⅓ c. sopa|⅙ fl oz|4.93 mL</translation>
    </message>
    <message>
        <source>1 tablespoon|3 tsp|1 tbsp|½ fl oz|14.79 mL</source>
        <translation>1 colher de sopa|3 c. chá|1 c. sopa|½ fl oz|14.79 mL</translation>
    </message>
    <message>
        <source>1 fluid ounce|6 tsp|2 tbsp|1 fl oz|29.57 mL</source>
        <translation>1 onça líquida|6 c. chá|2 c. sopa|1 fl oz|29.57 mL</translation>
    </message>
    <message>
        <source>¼ cup|12 tsp|4 tbsp|2 fl oz|59.15 mL</source>
        <translation>¼ de xícara|12 c. chá|4 c. sopa|2 fl oz|59.15 mL</translation>
    </message>
    <message>
        <source>⅓ cup|16 tsp|5⅓ tbsp|2⅔ fl oz|78.86 mL</source>
        <translation>⅓ de xícara|16 c. chá|5⅓ c. sopa|2⅔ fl oz|78.86 mL</translation>
    </message>
    <message>
        <source>½ cup|24 tsp|8 tbsp|4 fl oz|118.29 mL</source>
        <translation>½ xícara|24 c. chá|8 c. sopa|4 fl oz|118.29 mL</translation>
    </message>
    <message>
        <source>⅔ cup|32 tsp|10⅔ tbsp|5⅓ fl oz|157.73 mL</source>
        <translation>⅔ de xícara|32 c. chá|10⅔ c. sopa|5⅓ fl oz|157.73 mL</translation>
    </message>
    <message>
        <source>¾ cup|36 tsp|12 tbsp|6 fl oz|177.44 mL</source>
        <translation>¾ de xícara|36 c. chá|12 c. sopa|6 fl oz|177.44 mL</translation>
    </message>
    <message>
        <source>1 cup|48 tsp|16 tbsp|8 fl oz|236.59 mL</source>
        <translation>1 xícara|48 c. chá|16 c. sopa|8 fl oz|236.59 mL</translation>
    </message>
    <message>
        <source>1 pint|96 tsp|32 tbsp|16 fl oz|473.18 mL</source>
        <translation>1 pinta|96 c. chá|32 c. sopa|16 fl oz|473.18 mL</translation>
    </message>
    <message>
        <source>1 quart|192 tsp|64 tbsp|32 fl oz|946.35 mL</source>
        <translation>1 quarto|192 c. chá|64 c. sopa|32 fl oz|946.35 mL</translation>
    </message>
    <message>
        <source>1 gallon|768 tsp|256 tbsp|128 fl oz|3785.41 mL</source>
        <translation>1 galão|768 c. chá|256 c. sopa|128 fl oz|3785.41 mL</translation>
    </message>
    <message>
        <source>1 metric teaspoon|0.17 fl oz|5 mL</source>
        <translation>1 colher de chá métrica|0.17 fl oz|5 mL</translation>
    </message>
    <message>
        <source>1 metric tablespoon|0.51 fl oz|15 mL</source>
        <translation>1 colher de sopa métrica|0.51 fl oz|15 mL</translation>
    </message>
    <message>
        <source>1 Australian tablespoon|0.68 fl oz|20 mL</source>
        <translation>1 colher de sopa australiana|0.68 fl oz|20 mL</translation>
    </message>
    <message>
        <source>1 Japanese cup|6.76 fl oz|200 mL</source>
        <translation>1 xícara japonesa|6.76 fl oz|200 mL</translation>
    </message>
    <message>
        <source>1 metric cup|8.45 fl oz|250 mL</source>
        <translation>1 xícara métrica|8.45 fl oz|250 mL</translation>
    </message>
    <message>
        <source>1 liter|33.81 fl oz|1000 mL</source>
        <translation>1 litro|33.81 fl oz|1000 mL</translation>
    </message>
    <message>
        <source>1 UK fluid ounce|0.96 fl oz|28.41 mL</source>
        <translation>1 onça líquida britânica|0.96 fl oz|28.41 mL</translation>
    </message>
    <message>
        <source>1 UK pint|19.22 fl oz|568.26 mL</source>
        <translation>1 pinta britânica|19.22 fl oz|568.26 mL</translation>
    </message>
    <message>
        <source>1 UK quart|38.43 fl oz|1136.52 mL</source>
        <translation>1 quarto britânico|38.43 fl oz|1136.52 mL</translation>
    </message>
    <message>
        <source>1 UK gallon|153.72 fl oz|4546.09 mL</source>
        <translation>1 galão britânico|153.72 fl oz|4546.09 mL</translation>
    </message>
    <message>
        <source>1 ounce|1 oz|0.0625 lb|28.35 g</source>
        <translation>1 onça|1 oz|0.0625 lb|28.35 g</translation>
    </message>
    <message>
        <source>2 ounces|2 oz|0.125 lb|56.70 g</source>
        <translation>2 onças|2 oz|0.125 lb|56.70 g</translation>
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
        <translation>50 gramas|1.76 oz|0.110 lb|50 g</translation>
    </message>
    <message>
        <source>100 grams|3.53 oz|0.220 lb|100 g</source>
        <translation>100 gramas|3.53 oz|0.220 lb|100 g</translation>
    </message>
    <message>
        <source>250 grams|8.82 oz|0.551 lb|250 g</source>
        <translation>250 gramas|8.82 oz|0.551 lb|250 g</translation>
    </message>
    <message>
        <source>500 grams|17.64 oz|1.102 lb|500 g</source>
        <translation>500 gramas|17.64 oz|1.102 lb|500 g</translation>
    </message>
    <message>
        <source>1 kilogram|35.27 oz|2.205 lb|1000 g</source>
        <translation>1 quilograma|35.27 oz|2.205 lb|1000 g</translation>
    </message>
    <message>
        <source>⅛ stick|1 tbsp|1⁄16 cup|½ oz|14.17 g</source>
        <translation>⅛ de tablete|1 c. sopa|1⁄16 de xícara|½ oz|14.17 g</translation>
    </message>
    <message>
        <source>¼ stick|2 tbsp|⅛ cup|1 oz|28.35 g</source>
        <translation>¼ de tablete|2 c. sopa|⅛ de xícara|1 oz|28.35 g</translation>
    </message>
    <message>
        <source>½ stick|4 tbsp|¼ cup|2 oz|56.70 g</source>
        <translation>½ tablete|4 c. sopa|¼ de xícara|2 oz|56.70 g</translation>
    </message>
    <message>
        <source>1 stick|8 tbsp|½ cup|4 oz|113.40 g</source>
        <translation>1 tablete|8 c. sopa|½ xícara|4 oz|113.40 g</translation>
    </message>
    <message>
        <source>2 sticks|16 tbsp|1 cup|8 oz|226.80 g</source>
        <translation>2 tabletes|16 c. sopa|1 xícara|8 oz|226.80 g</translation>
    </message>
    <message>
        <source>4 sticks|32 tbsp|2 cups|16 oz|453.59 g</source>
        <translation>4 tabletes|32 c. sopa|2 xícaras|16 oz|453.59 g</translation>
    </message>
    <message>
        <source>Very cool|Gas ¼|225 °F|107 °C|110 °C</source>
        <translation>Muito baixo|Gás ¼|225 °F|107 °C|110 °C</translation>
    </message>
    <message>
        <source>Very cool|Gas ½|250 °F|121 °C|120 °C</source>
        <translation>Muito baixo|Gás ½|250 °F|121 °C|120 °C</translation>
    </message>
    <message>
        <source>Cool|Gas 1|275 °F|135 °C|140 °C</source>
        <translation>Baixo|Gás 1|275 °F|135 °C|140 °C</translation>
    </message>
    <message>
        <source>Cool|Gas 2|300 °F|149 °C|150 °C</source>
        <translation>Baixo|Gás 2|300 °F|149 °C|150 °C</translation>
    </message>
    <message>
        <source>Warm|Gas 3|325 °F|163 °C|160 °C</source>
        <translation>Médio-baixo|Gás 3|325 °F|163 °C|160 °C</translation>
    </message>
    <message>
        <source>Moderate|Gas 4|350 °F|177 °C|180 °C</source>
        <translation>Médio|Gás 4|350 °F|177 °C|180 °C</translation>
    </message>
    <message>
        <source>Fairly hot|Gas 5|375 °F|191 °C|190 °C</source>
        <translation>Médio-alto|Gás 5|375 °F|191 °C|190 °C</translation>
    </message>
    <message>
        <source>Fairly hot|Gas 6|400 °F|204 °C|200 °C</source>
        <translation>Médio-alto|Gás 6|400 °F|204 °C|200 °C</translation>
    </message>
    <message>
        <source>Hot|Gas 7|425 °F|218 °C|220 °C</source>
        <translation>Alto|Gás 7|425 °F|218 °C|220 °C</translation>
    </message>
    <message>
        <source>Very hot|Gas 8|450 °F|232 °C|230 °C</source>
        <translation>Muito alto|Gás 8|450 °F|232 °C|230 °C</translation>
    </message>
    <message>
        <source>Very hot|Gas 9|475 °F|246 °C|250 °C</source>
        <translation>Muito alto|Gás 9|475 °F|246 °C|250 °C</translation>
    </message>
    <message>
        <source>Teaspoons to milliliters|× 4.929</source>
        <translation>Colheres de chá para mililitros|× 4.929</translation>
    </message>
    <message>
        <source>Tablespoons to milliliters|× 14.79</source>
        <translation>Colheres de sopa para mililitros|× 14.79</translation>
    </message>
    <message>
        <source>Fluid ounces to milliliters|× 29.57</source>
        <translation>Onças líquidas para mililitros|× 29.57</translation>
    </message>
    <message>
        <source>Cups to milliliters|× 236.6</source>
        <translation>Xícaras para mililitros|× 236.6</translation>
    </message>
    <message>
        <source>Milliliters to fluid ounces|× 0.03381</source>
        <translation>Mililitros para onças líquidas|× 0.03381</translation>
    </message>
    <message>
        <source>Quarts to liters|× 0.9464</source>
        <translation>Quartos para litros|× 0.9464</translation>
    </message>
    <message>
        <source>Liters to quarts|× 1.057</source>
        <translation>Litros para quartos|× 1.057</translation>
    </message>
    <message>
        <source>Ounces to grams|× 28.35</source>
        <translation>Onças para gramas|× 28.35</translation>
    </message>
    <message>
        <source>Grams to ounces|× 0.03527</source>
        <translation>Gramas para onças|× 0.03527</translation>
    </message>
    <message>
        <source>Pounds to kilograms|× 0.4536</source>
        <translation>Libras para quilogramas|× 0.4536</translation>
    </message>
    <message>
        <source>Kilograms to pounds|× 2.205</source>
        <translation>Quilogramas para libras|× 2.205</translation>
    </message>
    <message>
        <source>Inches to centimeters|× 2.54</source>
        <translation>Polegadas para centímetros|× 2.54</translation>
    </message>
    <message>
        <source>Centimeters to inches|× 0.3937</source>
        <translation>Centímetros para polegadas|× 0.3937</translation>
    </message>
    <message>
        <source>Celsius to Fahrenheit|× 1.8, then + 32</source>
        <translation>Celsius para Fahrenheit|× 1.8, depois + 32</translation>
    </message>
    <message>
        <source>Fahrenheit to Celsius|− 32, then ÷ 1.8</source>
        <translation>Fahrenheit para Celsius|− 32, depois ÷ 1.8</translation>
    </message>
    <message>
        <source>Volume, US measures</source>
        <translation>Volume, medidas dos EUA</translation>
    </message>
    <message>
        <source>Measure|Teaspoons|Tablespoons|Fluid ounces|Milliliters</source>
        <translation>Medida|Colheres de chá|Colheres de sopa|Onças líquidas|Mililitros</translation>
    </message>
    <message>
        <source>Volume, other measures</source>
        <translation>Volume, outras medidas</translation>
    </message>
    <message>
        <source>Measure|US fluid ounces|Milliliters</source>
        <translation>Medida|Onças líquidas dos EUA|Mililitros</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Peso</translation>
    </message>
    <message>
        <source>Weight|Ounces|Pounds|Grams</source>
        <translation>Peso|Onças|Libras|Gramas</translation>
    </message>
    <message>
        <source>Butter, US sticks</source>
        <translation>Manteiga, tabletes dos EUA</translation>
    </message>
    <message>
        <source>Butter|Tablespoons|Cups|Ounces|Grams</source>
        <translation>Manteiga|Colheres de sopa|Xícaras|Onças|Gramas</translation>
    </message>
    <message>
        <source>Oven temperatures</source>
        <translation>Temperaturas do forno</translation>
    </message>
    <message>
        <source>Heat|Gas mark|Fahrenheit|Celsius|On the dial</source>
        <translation>Forno|Marca de gás|Fahrenheit|Celsius|No termostato</translation>
    </message>
    <message>
        <source>Common conversions</source>
        <translation>Conversões comuns</translation>
    </message>
    <message>
        <source>Conversion|Calculation</source>
        <translation>Conversão|Cálculo</translation>
    </message>
</context>
<context>
    <name>Preferences</name>
    <message>
        <source>Preferences</source>
        <translation>Preferências</translation>
    </message>
    <message>
        <source>&amp;General</source>
        <extracomment>The title of a page.</extracomment>
        <translation>&amp;Geral</translation>
    </message>
    <message>
        <source>At &amp;launch:</source>
        <extracomment>Stands before the list of what opens when the program starts.</extracomment>
        <translation>Ao abrir o &amp;Wuffer:</translation>
    </message>
    <message>
        <source>What opens when the program starts</source>
        <translation>O que aparece quando o programa é aberto</translation>
    </message>
    <message>
        <source>At launch</source>
        <translation>Ao abrir o Wuffer</translation>
    </message>
    <message>
        <source>Finished te&amp;xt:</source>
        <extracomment>Stands before the text that timers show at their end.</extracomment>
        <translation>Te&amp;xto final:</translation>
    </message>
    <message>
        <source>What a timer says when its countdown has ended</source>
        <translation>O que o temporizador mostra quando a contagem regressiva termina</translation>
    </message>
    <message>
        <source>Finished text</source>
        <translation>Texto final</translation>
    </message>
    <message>
        <source>A timer that is opened from a preset starts at once</source>
        <translation>Um temporizador aberto a partir de uma predefinição é iniciado imediatamente</translation>
    </message>
    <message>
        <source>Start presets when they are &amp;opened</source>
        <translation>&amp;Iniciar predefinições ao abri-las</translation>
    </message>
    <message>
        <source>The desktop does not tell of countdowns that have ended</source>
        <translation>A área de trabalho não avisa quando uma contagem regressiva termina</translation>
    </message>
    <message>
        <source>Turn off &amp;notifications</source>
        <translation>Desativar &amp;notificações</translation>
    </message>
    <message>
        <source>Running timers do not show in the panel of the desktop</source>
        <translation>Os temporizadores em andamento não aparecem no painel</translation>
    </message>
    <message>
        <source>Hide the status &amp;item</source>
        <extracomment>The item of the program in the panel of the desktop.</extracomment>
        <translation>&amp;Ocultar o indicador do painel</translation>
    </message>
    <message>
        <source>Timers refresh their display less often and show no milliseconds.
Beeps and the end of a countdown come up to 0.2 seconds late.</source>
        <translation>Os temporizadores atualizam o visor com menos frequência e não mostram milissegundos.
Os bipes e o fim da contagem podem atrasar até 0,2 segundo.</translation>
    </message>
    <message>
        <source>&amp;Energy saver</source>
        <translation>&amp;Economia de energia</translation>
    </message>
    <message>
        <source>&amp;Sounds</source>
        <extracomment>The title of a page.</extracomment>
        <translation>&amp;Sons</translation>
    </message>
    <message>
        <source>No timer makes a sound</source>
        <translation>Nenhum temporizador emite som</translation>
    </message>
    <message>
        <source>&amp;Mute all timers</source>
        <translation>Si&amp;lenciar todos os temporizadores</translation>
    </message>
    <message>
        <source>The last seconds of a countdown pass in silence</source>
        <translation>Os últimos segundos da contagem regressiva passam em silêncio</translation>
    </message>
    <message>
        <source>Turn off countdown &amp;beeps</source>
        <translation>Desativar &amp;bipes da contagem</translation>
    </message>
    <message>
        <source>&amp;Alarm:</source>
        <translation>Ala&amp;rme:</translation>
    </message>
    <message>
        <source>Alarm sound of new timers</source>
        <translation>Som do alarme dos novos temporizadores</translation>
    </message>
    <message>
        <source>Play the alarm sound</source>
        <translation>Tocar o som do alarme</translation>
    </message>
    <message>
        <source>Stop the alarm sound</source>
        <translation>Parar o som do alarme</translation>
    </message>
    <message>
        <source>In use:</source>
        <extracomment>Stands before the name of a sound.</extracomment>
        <translation>Em uso:</translation>
    </message>
    <message>
        <source>Alarm sound in use</source>
        <translation>Som do alarme em uso</translation>
    </message>
    <message>
        <source>Alarm sound that cannot be played</source>
        <translation>Som do alarme que não pode ser tocado</translation>
    </message>
    <message>
        <source>&amp;Countdown:</source>
        <translation>&amp;Contagem:</translation>
    </message>
    <message>
        <source>Countdown sound of new timers</source>
        <translation>Som da contagem dos novos temporizadores</translation>
    </message>
    <message>
        <source>Play the countdown sound</source>
        <translation>Tocar o som da contagem</translation>
    </message>
    <message>
        <source>Stop the countdown sound</source>
        <translation>Parar o som da contagem</translation>
    </message>
    <message>
        <source>Countdown sound in use</source>
        <translation>Som da contagem em uso</translation>
    </message>
    <message>
        <source>Countdown sound that cannot be played</source>
        <translation>Som da contagem que não pode ser tocado</translation>
    </message>
    <message>
        <source>Timers opened from now on begin with these sounds. Each timer offers a choice of its own under More Options.</source>
        <translation>Os temporizadores abertos de agora em diante usam estes sons. Em cada um deles, é possível escolher outros em “Mais opções”.</translation>
    </message>
    <message>
        <source>Mute All</source>
        <translation>Silenciar todos</translation>
    </message>
    <message>
        <source>Unmute All</source>
        <translation>Reativar som de todos</translation>
    </message>
    <message>
        <source>Select a sound file</source>
        <translation>Selecionar um arquivo de som</translation>
    </message>
    <message>
        <source>Unplayable:</source>
        <extracomment>Stands before the name of the file of a sound.</extracomment>
        <translation>Não toca:</translation>
    </message>
    <message>
        <source>Missing:</source>
        <translation>Ausente:</translation>
    </message>
    <message>
        <source>Running timers do not show in the panel</source>
        <extracomment>A line below “Hide the status item”; as short as possible.</extracomment>
        <translation>Os temporizadores em andamento não aparecem no painel</translation>
    </message>
    <message>
        <source>No milliseconds; beeps and alarms up to 0.2 s late</source>
        <extracomment>A line below “Energy saver”; as short as possible.</extracomment>
        <translation>Sem milissegundos; os bipes e alarmes podem atrasar até 0,2 segundo</translation>
    </message>
</context>
<context>
    <name>Preset</name>
    <message>
        <source>Preset %1</source>
        <extracomment>In the display of a timer opened from a preset; %1 is its number.</extracomment>
        <translation>Predefinição %1</translation>
    </message>
    <message>
        <source>Saved to Preset %1</source>
        <extracomment>In the display of a timer saved into a preset; %1 is its number.</extracomment>
        <translation>Salvo na predefinição %1</translation>
    </message>
</context>
<context>
    <name>PresetsMenu</name>
    <message>
        <source>&amp;Presets</source>
        <translation>&amp;Predefinições</translation>
    </message>
    <message>
        <source>Save Wuffer to Preset</source>
        <translation>Salvar como predefinição</translation>
    </message>
    <message>
        <source>Shortcut: Hold Control and press a number key</source>
        <translation>Atalho: segure Ctrl e pressione um número</translation>
    </message>
    <message>
        <source>⌘%1 (Overwrite %2)</source>
        <extracomment>The number of a preset, and the name and time in it, which saving replaces.</extracomment>
        <translation>⌘%1 (Substituir %2)</translation>
    </message>
</context>
<context>
    <name>SoundEntries</name>
    <message>
        <source>Wuff (Default)</source>
        <extracomment>A sound of the program: the bark of a dog.</extracomment>
        <translation>Wuff (padrão)</translation>
    </message>
    <message>
        <source>Crow (Default)</source>
        <extracomment>A sound of the program: the caw of a crow.</extracomment>
        <translation>Corvo (padrão)</translation>
    </message>
    <message>
        <source>Select another sound...</source>
        <translation>Selecionar outro som...</translation>
    </message>
    <message>
        <source>Clear custom sounds</source>
        <translation>Limpar sons personalizados</translation>
    </message>
    <message>
        <source>Manage Sounds...</source>
        <translation>Gerenciar sons...</translation>
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
        <translation>Data-alvo</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Calendário</translation>
    </message>
    <message>
        <source>Ring &amp;at:</source>
        <extracomment>Stands before the date and time at which a timer rings.</extracomment>
        <translation>Tocar &amp;em:</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Data e hora</translation>
    </message>
    <message>
        <source>How long that is from now</source>
        <translation>Quanto tempo falta até lá</translation>
    </message>
</context>
<context>
    <name>TargetTimeSheet</name>
    <message>
        <source>Previous month</source>
        <extracomment>Accessible name: the arrow of the calendar that turns one month back.</extracomment>
        <translation>Mês anterior</translation>
    </message>
    <message>
        <source>Next month</source>
        <extracomment>Accessible name: the arrow of the calendar that turns one month on.</extracomment>
        <translation>Próximo mês</translation>
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
        <translation>agora</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <extracomment>Two units of a time, the larger first: “4 h 12 min”.</extracomment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>in %1</source>
        <extracomment>The time that is left until a date: “in 4 h 12 min”.</extracomment>
        <translation>daqui a %1</translation>
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
        <translation>d dia dias</translation>
    </message>
    <message>
        <source>h hr hrs hour hours</source>
        <extracomment>The same for hours.</extracomment>
        <translation>h hs hora horas</translation>
    </message>
    <message>
        <source>m min mins minute minutes</source>
        <extracomment>The same for minutes.</extracomment>
        <translation>m min mins minuto minutos</translation>
    </message>
    <message>
        <source>s sec secs second seconds</source>
        <extracomment>The same for seconds.</extracomment>
        <translation>s seg segs segundo segundos</translation>
    </message>
    <message>
        <source>and</source>
        <extracomment>The word between two units: “1 hour and 5 minutes”.</extracomment>
        <translation>e</translation>
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
        <translation>Parar</translation>
    </message>
    <message>
        <source>Reset</source>
        <extracomment>On the button and in the menu, during an alarm: ends the alarm.</extracomment>
        <translation>Redefinir</translation>
    </message>
    <message>
        <source>Start Chain</source>
        <extracomment>On the button and in the menu, at the first timer of a chain: runs the chain.</extracomment>
        <translation>Iniciar cadeia</translation>
    </message>
    <message>
        <source>Chained</source>
        <extracomment>On the disabled button and in the menu: another timer starts this one.</extracomment>
        <translation>Encadeado</translation>
    </message>
    <message>
        <source>Stopwatch</source>
        <extracomment>A timer that counts up, and the menu item that makes a timer one.</extracomment>
        <translation>Cronômetro</translation>
    </message>
    <message>
        <source>Timer</source>
        <extracomment>The menu item that makes a stopwatch a timer that counts down.</extracomment>
        <translation>Temporizador</translation>
    </message>
    <message>
        <source>More Options</source>
        <extracomment>Opens the drawer with more options of a timer.</extracomment>
        <translation>Mais opções</translation>
    </message>
    <message>
        <source>Hide Options</source>
        <extracomment>Closes the drawer with more options of a timer.</extracomment>
        <translation>Ocultar opções</translation>
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
        <translation>O nome deste temporizador</translation>
    </message>
    <message>
        <source>Name</source>
        <extracomment>Accessible name: the name of the timer.</extracomment>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Name on the full screen</source>
        <extracomment>Accessible name: the name of the timer.</extracomment>
        <translation>Nome na tela cheia</translation>
    </message>
    <message>
        <source>Time</source>
        <extracomment>Accessible name: the time that the timer shows.</extracomment>
        <translation>Tempo</translation>
    </message>
    <message>
        <source>Elapsed time</source>
        <translation>Tempo decorrido</translation>
    </message>
    <message>
        <source>Milliseconds</source>
        <translation>Milissegundos</translation>
    </message>
    <message>
        <source>Hours</source>
        <translation>Horas</translation>
    </message>
    <message>
        <source>h&amp;ours</source>
        <extracomment>Stands after a number field, with those for minutes and seconds in one line.</extracomment>
        <translation>h&amp;oras</translation>
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
        <translation>&amp;Latir sem parar</translation>
    </message>
    <message>
        <source>Fill the screen when the countdown starts; any key or click ends it</source>
        <translation>Ocupa a tela inteira quando a contagem regressiva começa; para sair, pressione qualquer tecla ou clique</translation>
    </message>
    <message>
        <source>Fu&amp;ll screen</source>
        <extracomment>A check box.</extracomment>
        <translation>Tela c&amp;heia</translation>
    </message>
    <message>
        <source>Options</source>
        <extracomment>Accessible name: the drawer with more options of a timer.</extracomment>
        <translation>Opções</translation>
    </message>
    <message>
        <source>When fi&amp;nished:</source>
        <extracomment>Stands before the list of finish actions.</extracomment>
        <translation>Ao termi&amp;nar:</translation>
    </message>
    <message>
        <source>What happens when the countdown has ended and its alarm is over</source>
        <translation>O que acontece depois da contagem regressiva e do alarme</translation>
    </message>
    <message>
        <source>When finished</source>
        <translation>Ao terminar</translation>
    </message>
    <message>
        <source>What can happen when the countdown ends</source>
        <translation>O que pode acontecer quando a contagem regressiva termina</translation>
    </message>
    <message>
        <source>Help on finish actions</source>
        <translation>Ajuda sobre ações finais</translation>
    </message>
    <message>
        <source>What the finish action starts</source>
        <extracomment>Accessible name of the list of presets, or of the linked timer.</extracomment>
        <translation>O que a ação final inicia</translation>
    </message>
    <message>
        <source>Choose from the open timers</source>
        <translation>Escolher entre os temporizadores abertos</translation>
    </message>
    <message>
        <source>Choose the timer to start</source>
        <translation>Escolher o temporizador a iniciar</translation>
    </message>
    <message>
        <source>&amp;Alarm:</source>
        <extracomment>Stands before the list of sounds.</extracomment>
        <translation>Ala&amp;rme:</translation>
    </message>
    <message>
        <source>Alarm sound</source>
        <translation>Som do alarme</translation>
    </message>
    <message>
        <source>Play the alarm sound</source>
        <translation>Tocar o som do alarme</translation>
    </message>
    <message>
        <source>Stop the alarm sound</source>
        <translation>Parar o som do alarme</translation>
    </message>
    <message>
        <source>&amp;Countdown:</source>
        <extracomment>Stands before the list of sounds for the last seconds of a countdown.</extracomment>
        <translation>&amp;Contagem:</translation>
    </message>
    <message>
        <source>Countdown sound</source>
        <translation>Som da contagem</translation>
    </message>
    <message>
        <source>Play the countdown sound</source>
        <translation>Tocar o som da contagem</translation>
    </message>
    <message>
        <source>Stop the countdown sound</source>
        <translation>Parar o som da contagem</translation>
    </message>
    <message>
        <source>Elapsed: %1</source>
        <extracomment>The time since the start of a timer.</extracomment>
        <translation>Decorrido: %1</translation>
    </message>
    <message>
        <source>Ready when you are</source>
        <translation>Pronto para começar</translation>
    </message>
    <message>
        <source>The preset that this timer turns into and runs when it has finished</source>
        <translation>A predefinição que este temporizador assume e inicia ao terminar</translation>
    </message>
    <message>
        <source>Control-Drag a Wuffer</source>
        <extracomment>In place of the name of the timer to start: how to choose one.</extracomment>
        <translation>Arraste outro com Ctrl</translation>
    </message>
    <message>
        <source>When finished, this timer starts “%1”</source>
        <translation>Ao terminar, este temporizador inicia “%1”</translation>
    </message>
    <message>
        <source>Hold Control and drag the window of another timer onto this one: it starts when this one has finished</source>
        <translation>Segure Ctrl e arraste a janela de outro temporizador até esta: ele será iniciado quando este terminar</translation>
    </message>
    <message>
        <source>Sound is off</source>
        <translation>Som desligado</translation>
    </message>
    <message>
        <source>Sound is on</source>
        <translation>Som ligado</translation>
    </message>
    <message>
        <source>Let all timers be heard again</source>
        <translation>Reativar o som de todos os temporizadores</translation>
    </message>
    <message>
        <source>Mute all timers</source>
        <translation>Silenciar todos os temporizadores</translation>
    </message>
    <message>
        <source>A timer fills the screen</source>
        <translation>Um temporizador está em tela cheia</translation>
    </message>
</context>
<context>
    <name>WufferController</name>
    <message>
        <source>Preferences</source>
        <translation>Preferências</translation>
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
        <translation>Ajuda do Wuffer</translation>
    </message>
</context>
</TS>
