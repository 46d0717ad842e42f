<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR">
<context>
    <name>AccountPage</name>
    <message>
        <source>Enter account and password.</source>
        <translation>Informe a conta e a senha.</translation>
    </message>
    <message>
        <source>Account operation failed</source>
        <extracomment>Shown when signing in or out failed without a reason. Word it as a user would understand it: &quot;Could not complete the account action&quot;</extracomment>
        <translation>Não foi possível concluir a ação da conta</translation>
    </message>
</context>
<context>
    <name>AccountSignInCard</name>
    <message>
        <source>Remember this account</source>
        <translation>Lembrar esta conta</translation>
    </message>
    <message>
        <source>Sign In</source>
        <extracomment>Button that signs in to the Tovra account</extracomment>
        <translation>Entrar</translation>
    </message>
    <message>
        <source>Sign in</source>
        <translation>Entrar</translation>
    </message>
    <message>
        <source>Use your Tovra account to connect and sync available locations.</source>
        <translation>Use sua conta Tovra para se conectar e sincronizar as localizações disponíveis.</translation>
    </message>
    <message>
        <source>Email or user ID</source>
        <translation>E-mail ou ID de usuário</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Senha</translation>
    </message>
    <message>
        <source>Sign Up</source>
        <extracomment>Button that opens the page to create a Tovra account</extracomment>
        <translation>Criar conta</translation>
    </message>
    <message>
        <source>Forgot password?</source>
        <extracomment>Button (shown as a link) that opens the password reset page</extracomment>
        <translation>Esqueceu a senha?</translation>
    </message>
    <message>
        <source>Signing in...</source>
        <extracomment>Button while the sign-in runs</extracomment>
        <translation>Entrando...</translation>
    </message>
</context>
<context>
    <name>AccountSummaryCard</name>
    <message>
        <source>Renew</source>
        <extracomment>Button that opens the page to renew the plan</extracomment>
        <translation>Renovar</translation>
    </message>
    <message>
        <source>Sign Out</source>
        <extracomment>Button that signs out of the Tovra account</extracomment>
        <translation>Sair da conta</translation>
    </message>
    <message>
        <source>Signed in</source>
        <translation>Sessão iniciada</translation>
    </message>
    <message>
        <source>User ID: %1</source>
        <translation>ID de usuário: %1</translation>
    </message>
    <message>
        <source>Plan: %1</source>
        <translation>Plano: %1</translation>
    </message>
    <message>
        <source>Days left: %1</source>
        <translation>Dias restantes: %1</translation>
    </message>
    <message>
        <source>Max simultaneous devices: %1</source>
        <translation>Máximo de dispositivos simultâneos: %1</translation>
    </message>
    <message>
        <source>Signing out...</source>
        <extracomment>Button while the sign-out runs</extracomment>
        <translation>Saindo da conta...</translation>
    </message>
    <message>
        <source>Opening…</source>
        <extracomment>Button while the renewal page opens</extracomment>
        <translation>Abrindo…</translation>
    </message>
</context>
<context>
    <name>AppSection</name>
    <message>
        <source>App</source>
        <translation>Aplicativo</translation>
    </message>
    <message>
        <source>Change…</source>
        <extracomment>Button that opens the language picker</extracomment>
        <translation>Alterar…</translation>
    </message>
    <message>
        <source>Launch at login</source>
        <translation>Abrir ao iniciar a sessão</translation>
    </message>
    <message>
        <source>Start Tovra in the tray when you sign in to the desktop.</source>
        <translation>Inicia o Tovra na bandeja ao entrar na sessão da área de trabalho.</translation>
    </message>
    <message>
        <source>Show window at launch</source>
        <translation>Mostrar janela ao iniciar</translation>
    </message>
    <message>
        <source>Open this window when Tovra starts; otherwise only the tray icon appears.</source>
        <translation>Abre esta janela quando o Tovra inicia; caso contrário, aparece só o ícone na bandeja.</translation>
    </message>
    <message>
        <source>Same as desktop</source>
        <translation>Igual à área de trabalho</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Claro</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Escuro</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Aparência</translation>
    </message>
    <message>
        <source>Light, dark, or following the desktop.</source>
        <translation>Claro, escuro ou igual à área de trabalho.</translation>
    </message>
    <message>
        <source>Change language</source>
        <translation>Alterar idioma</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>%1, following the desktop</source>
        <translation>%1, conforme a área de trabalho</translation>
    </message>
    <message>
        <source>Could not update login startup</source>
        <translation>Não foi possível atualizar a inicialização automática</translation>
    </message>
    <message>
        <source>Show…</source>
        <extracomment>Button that opens the list of keyboard shortcuts</extracomment>
        <translation>Mostrar…</translation>
    </message>
    <message>
        <source>Show keyboard shortcuts</source>
        <translation>Mostrar os atalhos de teclado</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Atalhos de teclado</translation>
    </message>
    <message>
        <source>Every key that works in this window.</source>
        <translation>Todas as teclas que funcionam nesta janela.</translation>
    </message>
</context>
<context>
    <name>CatalogTreeModel</name>
    <message>
        <source>Location %1</source>
        <translation>Localização %1</translation>
    </message>
    <message>
        <source>Other locations</source>
        <translation>Outras localizações</translation>
    </message>
    <message>
        <source>Premium</source>
        <translation>Premium</translation>
    </message>
    <message>
        <source>locations: %1</source>
        <translation>localizações: %1</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>latency not measured</source>
        <translation>latência não medida</translation>
    </message>
    <message>
        <source>favourite</source>
        <translation>favorito</translation>
    </message>
    <message>
        <source>connected</source>
        <extracomment>Said of a location in the list: it is the one the VPN is connected to now (not connecting)</extracomment>
        <translation>conectado</translation>
    </message>
    <message>
        <source>not in your plan</source>
        <translation>fora do seu plano</translation>
    </message>
    <message>
        <source>Your plan does not include this location. Upgrade to use it.</source>
        <translation>Seu plano não inclui esta localização. Faça upgrade para usá-la.</translation>
    </message>
    <message>
        <source>This list may be out of date.</source>
        <translation>Esta lista pode estar desatualizada.</translation>
    </message>
    <message>
        <source>Locked: needs the %1 plan. Upgrade to use it.</source>
        <translation>Bloqueada: requer o plano %1. Faça upgrade para usá-la.</translation>
    </message>
</context>
<context>
    <name>ConfirmDialog</name>
    <message>
        <source>Cancel</source>
        <extracomment>Button</extracomment>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>ConnectionSection</name>
    <message>
        <source>Connection</source>
        <translation>Conexão</translation>
    </message>
    <message>
        <source>API URL</source>
        <translation>URL da API</translation>
    </message>
    <message>
        <source>Save</source>
        <extracomment>Button that saves the API URL typed in the field</extracomment>
        <translation>Salvar</translation>
    </message>
    <message>
        <source>Reset to default</source>
        <extracomment>Button that puts the API URL back to the default address</extracomment>
        <translation>Restaurar padrão</translation>
    </message>
    <message>
        <source>Off</source>
        <extracomment>Auto connect choice: connect to nothing when the service starts</extracomment>
        <translation>Desativada</translation>
    </message>
    <message>
        <source>Last location</source>
        <translation>Última localização</translation>
    </message>
    <message>
        <source>Fastest location</source>
        <translation>Localização mais rápida</translation>
    </message>
    <message>
        <source>Auto connect</source>
        <translation>Conexão automática</translation>
    </message>
    <message>
        <source>What the Tovra service connects to when it starts.</source>
        <translation>Ao que o serviço Tovra se conecta quando inicia.</translation>
    </message>
    <message>
        <source>Save API URL</source>
        <translation>Salvar URL da API</translation>
    </message>
    <message>
        <source>Reset API URL to default</source>
        <translation>Restaurar a URL padrão da API</translation>
    </message>
    <message>
        <source>Where the Tovra service reaches the account and location servers. Change it only when support asks you to.</source>
        <translation>Endereço pelo qual o serviço Tovra acessa os servidores de contas e localizações. Altere apenas se o suporte pedir.</translation>
    </message>
    <message>
        <source>Validation: %1</source>
        <translation>Validação: %1</translation>
    </message>
    <message>
        <source>Validated by the Tovra service</source>
        <translation>Validada pelo serviço Tovra</translation>
    </message>
    <message>
        <source>Not validated: the Tovra service saved this address but could not confirm it</source>
        <translation>Não validada: o serviço Tovra salvou este endereço, mas não conseguiu confirmá-lo</translation>
    </message>
</context>
<context>
    <name>Continents</name>
    <message>
        <source>Africa</source>
        <translation>África</translation>
    </message>
    <message>
        <source>Antarctica</source>
        <translation>Antártida</translation>
    </message>
    <message>
        <source>Asia</source>
        <translation>Ásia</translation>
    </message>
    <message>
        <source>Europe</source>
        <translation>Europa</translation>
    </message>
    <message>
        <source>Middle East</source>
        <translation>Oriente Médio</translation>
    </message>
    <message>
        <source>North America</source>
        <translation>América do Norte</translation>
    </message>
    <message>
        <source>Oceania</source>
        <translation>Oceania</translation>
    </message>
    <message>
        <source>South America</source>
        <translation>América do Sul</translation>
    </message>
</context>
<context>
    <name>ControlClient</name>
    <message>
        <source>Tovra daemon is not running.</source>
        <translation>O serviço Tovra não está em execução.</translation>
    </message>
    <message>
        <source>Tovra daemon access denied. Add this user to the tovracli group, then sign out and back in.</source>
        <translation>Acesso ao serviço Tovra negado. Adicione este usuário ao grupo tovracli e depois saia e entre novamente na sessão.</translation>
    </message>
    <message>
        <source>Could not connect to Tovra daemon.</source>
        <translation>Não foi possível conectar ao serviço Tovra.</translation>
    </message>
    <message>
        <source>Tovra daemon is too old for Kill Switch modes. Update Tovra.</source>
        <translation>O serviço Tovra é antigo demais para os modos do Kill Switch. Atualize o Tovra.</translation>
    </message>
</context>
<context>
    <name>Countries</name>
    <message>
        <source>Afghanistan</source>
        <translation>Afeganistão</translation>
    </message>
    <message>
        <source>Land Islands</source>
        <translation>Ilhas Åland</translation>
    </message>
    <message>
        <source>Albania</source>
        <translation>Albânia</translation>
    </message>
    <message>
        <source>Algeria</source>
        <translation>Argélia</translation>
    </message>
    <message>
        <source>American Samoa</source>
        <translation>Samoa Americana</translation>
    </message>
    <message>
        <source>Andorra</source>
        <translation>Andorra</translation>
    </message>
    <message>
        <source>Angola</source>
        <translation>Angola</translation>
    </message>
    <message>
        <source>Anguilla</source>
        <translation>Anguila</translation>
    </message>
    <message>
        <source>Antigua and Barbuda</source>
        <translation>Antígua e Barbuda</translation>
    </message>
    <message>
        <source>Argentina</source>
        <translation>Argentina</translation>
    </message>
    <message>
        <source>Armenia</source>
        <translation>Armênia</translation>
    </message>
    <message>
        <source>Aruba</source>
        <translation>Aruba</translation>
    </message>
    <message>
        <source>Australia</source>
        <translation>Austrália</translation>
    </message>
    <message>
        <source>Austria</source>
        <translation>Áustria</translation>
    </message>
    <message>
        <source>Azerbaijan</source>
        <translation>Azerbaidjão</translation>
    </message>
    <message>
        <source>Bahamas</source>
        <translation>Bahamas</translation>
    </message>
    <message>
        <source>Bahrain</source>
        <translation>Barein</translation>
    </message>
    <message>
        <source>Bangladesh</source>
        <translation>Bangladesh</translation>
    </message>
    <message>
        <source>Barbados</source>
        <translation>Barbados</translation>
    </message>
    <message>
        <source>Belarus</source>
        <translation>Bielo-Rússia</translation>
    </message>
    <message>
        <source>Belgium</source>
        <translation>Bélgica</translation>
    </message>
    <message>
        <source>Belize</source>
        <translation>Belize</translation>
    </message>
    <message>
        <source>Benin</source>
        <translation>Benin</translation>
    </message>
    <message>
        <source>Bermuda</source>
        <translation>Bermuda</translation>
    </message>
    <message>
        <source>Bhutan</source>
        <translation>Butão</translation>
    </message>
    <message>
        <source>Bolivia</source>
        <translation>Bolívia</translation>
    </message>
    <message>
        <source>Bosnia and Herzegovina</source>
        <translation>Bósnia-Herzegóvina</translation>
    </message>
    <message>
        <source>Botswana</source>
        <translation>Botsuana</translation>
    </message>
    <message>
        <source>Brazil</source>
        <translation>Brasil</translation>
    </message>
    <message>
        <source>Brunei Darussalam</source>
        <translation>Brunei</translation>
    </message>
    <message>
        <source>Bulgaria</source>
        <translation>Bulgária</translation>
    </message>
    <message>
        <source>Burkina Faso</source>
        <translation>Burquina</translation>
    </message>
    <message>
        <source>Burundi</source>
        <translation>Burundi</translation>
    </message>
    <message>
        <source>Cambodia</source>
        <translation>Camboja</translation>
    </message>
    <message>
        <source>Cameroon</source>
        <translation>Camarões</translation>
    </message>
    <message>
        <source>Canada</source>
        <translation>Canadá</translation>
    </message>
    <message>
        <source>Cape Verde</source>
        <translation>Cabo Verde</translation>
    </message>
    <message>
        <source>Cayman Islands</source>
        <translation>Ilhas Cayman</translation>
    </message>
    <message>
        <source>Central African Republic</source>
        <translation>República Centro-Africana</translation>
    </message>
    <message>
        <source>Chad</source>
        <translation>Chade</translation>
    </message>
    <message>
        <source>Chile</source>
        <translation>Chile</translation>
    </message>
    <message>
        <source>China</source>
        <translation>China</translation>
    </message>
    <message>
        <source>Colombia</source>
        <translation>Colômbia</translation>
    </message>
    <message>
        <source>Comoros</source>
        <translation>Comores</translation>
    </message>
    <message>
        <source>Congo</source>
        <translation>Congo</translation>
    </message>
    <message>
        <source>Congo, The Democratic Republic of the</source>
        <translation>Congo, República Democrática do</translation>
    </message>
    <message>
        <source>Cook Islands</source>
        <translation>Ilhas Cook</translation>
    </message>
    <message>
        <source>Costa Rica</source>
        <translation>Costa Rica</translation>
    </message>
    <message>
        <source>Cote D&apos;Ivoire</source>
        <translation>Costa do Marfim</translation>
    </message>
    <message>
        <source>Croatia</source>
        <translation>Croácia</translation>
    </message>
    <message>
        <source>Cuba</source>
        <translation>Cuba</translation>
    </message>
    <message>
        <source>Cyprus</source>
        <translation>Chipre</translation>
    </message>
    <message>
        <source>Czech Republic</source>
        <translation>Chéquia</translation>
    </message>
    <message>
        <source>Denmark</source>
        <translation>Dinamarca</translation>
    </message>
    <message>
        <source>Djibouti</source>
        <translation>Djibuti</translation>
    </message>
    <message>
        <source>Dominica</source>
        <translation>Domínica</translation>
    </message>
    <message>
        <source>Dominican Republic</source>
        <translation>República Dominicana</translation>
    </message>
    <message>
        <source>Ecuador</source>
        <translation>Equador</translation>
    </message>
    <message>
        <source>Egypt</source>
        <translation>Egito</translation>
    </message>
    <message>
        <source>El Salvador</source>
        <translation>El Salvador</translation>
    </message>
    <message>
        <source>Equatorial Guinea</source>
        <translation>Guiné Equatorial</translation>
    </message>
    <message>
        <source>Eritrea</source>
        <translation>Eritréia</translation>
    </message>
    <message>
        <source>Estonia</source>
        <translation>Estônia</translation>
    </message>
    <message>
        <source>Ethiopia</source>
        <translation>Etiópia</translation>
    </message>
    <message>
        <source>Falkland Islands (Malvinas)</source>
        <translation>Ilhas Malvinas (Falkland)</translation>
    </message>
    <message>
        <source>Faroe Islands</source>
        <translation>Ilhas Faroe</translation>
    </message>
    <message>
        <source>Fiji</source>
        <translation>Fiji</translation>
    </message>
    <message>
        <source>Finland</source>
        <translation>Finlândia</translation>
    </message>
    <message>
        <source>France</source>
        <translation>França</translation>
    </message>
    <message>
        <source>French Guiana</source>
        <translation>Guiana Francesa</translation>
    </message>
    <message>
        <source>French Polynesia</source>
        <translation>Polinésia Francesa</translation>
    </message>
    <message>
        <source>Gabon</source>
        <translation>Gabão</translation>
    </message>
    <message>
        <source>Gambia</source>
        <translation>Gâmbia</translation>
    </message>
    <message>
        <source>Georgia</source>
        <translation>Geórgia</translation>
    </message>
    <message>
        <source>Germany</source>
        <translation>Alemanha</translation>
    </message>
    <message>
        <source>Ghana</source>
        <translation>Gana</translation>
    </message>
    <message>
        <source>Gibraltar</source>
        <translation>Gibraltar</translation>
    </message>
    <message>
        <source>Greece</source>
        <translation>Grécia</translation>
    </message>
    <message>
        <source>Greenland</source>
        <translation>Groenlândia</translation>
    </message>
    <message>
        <source>Grenada</source>
        <translation>Granada</translation>
    </message>
    <message>
        <source>Guadeloupe</source>
        <translation>Guadalupe</translation>
    </message>
    <message>
        <source>Guam</source>
        <translation>Guam</translation>
    </message>
    <message>
        <source>Guatemala</source>
        <translation>Guatemala</translation>
    </message>
    <message>
        <source>Guernsey</source>
        <translation>Guernsey</translation>
    </message>
    <message>
        <source>Guinea</source>
        <translation>Guiné</translation>
    </message>
    <message>
        <source>Guinea-Bissau</source>
        <translation>Guiné-Bissau</translation>
    </message>
    <message>
        <source>Guyana</source>
        <translation>Guiana</translation>
    </message>
    <message>
        <source>Haiti</source>
        <translation>Haiti</translation>
    </message>
    <message>
        <source>Holy See (Vatican City State)</source>
        <translation>Santa Sé (Cidade-Estado do Vaticano)</translation>
    </message>
    <message>
        <source>Honduras</source>
        <translation>Honduras</translation>
    </message>
    <message>
        <source>Hong Kong (China)</source>
        <translation>Hong Kong</translation>
    </message>
    <message>
        <source>Hungary</source>
        <translation>Hungria</translation>
    </message>
    <message>
        <source>Iceland</source>
        <translation>Islândia</translation>
    </message>
    <message>
        <source>India</source>
        <translation>Índia</translation>
    </message>
    <message>
        <source>Indonesia</source>
        <translation>Indonésia</translation>
    </message>
    <message>
        <source>Iran, Islamic Republic of</source>
        <translation>Irã, República Islâmica do</translation>
    </message>
    <message>
        <source>Iraq</source>
        <translation>Iraque</translation>
    </message>
    <message>
        <source>Ireland</source>
        <translation>Irlanda</translation>
    </message>
    <message>
        <source>Isle of Man</source>
        <translation>Ilha de Man</translation>
    </message>
    <message>
        <source>Israel</source>
        <translation>Israel</translation>
    </message>
    <message>
        <source>Italy</source>
        <translation>Itália</translation>
    </message>
    <message>
        <source>Jamaica</source>
        <translation>Jamaica</translation>
    </message>
    <message>
        <source>Japan</source>
        <translation>Japão</translation>
    </message>
    <message>
        <source>Jersey</source>
        <translation>Jersey</translation>
    </message>
    <message>
        <source>Jordan</source>
        <translation>Jordânia</translation>
    </message>
    <message>
        <source>Kazakhstan</source>
        <translation>Cazaquistão</translation>
    </message>
    <message>
        <source>Kenya</source>
        <translation>Quênia</translation>
    </message>
    <message>
        <source>Kiribati</source>
        <translation>Kiribati</translation>
    </message>
    <message>
        <source>Korea, Democratic People&apos;S Republic of</source>
        <translation>Coreia do Norte</translation>
    </message>
    <message>
        <source>Korea, Republic of</source>
        <translation>Coreia do Sul</translation>
    </message>
    <message>
        <source>Kuwait</source>
        <translation>Kuwait</translation>
    </message>
    <message>
        <source>Kyrgyzstan</source>
        <translation>Quirguistão</translation>
    </message>
    <message>
        <source>Lao People&apos;S Democratic Republic</source>
        <translation>República Popular Democrática do Laos</translation>
    </message>
    <message>
        <source>Latvia</source>
        <translation>Letônia</translation>
    </message>
    <message>
        <source>Lebanon</source>
        <translation>Líbano</translation>
    </message>
    <message>
        <source>Lesotho</source>
        <translation>Lesoto</translation>
    </message>
    <message>
        <source>Liberia</source>
        <translation>Libéria</translation>
    </message>
    <message>
        <source>Libyan Arab Jamahiriya</source>
        <translation>Líbia</translation>
    </message>
    <message>
        <source>Liechtenstein</source>
        <translation>Liechtenstein</translation>
    </message>
    <message>
        <source>Lithuania</source>
        <translation>Lituânia</translation>
    </message>
    <message>
        <source>Luxembourg</source>
        <translation>Luxemburgo</translation>
    </message>
    <message>
        <source>Macao (China)</source>
        <translation>Macau</translation>
    </message>
    <message>
        <source>Macedonia, The Former Yugoslav Republic of</source>
        <translation>Macedônia do Norte</translation>
    </message>
    <message>
        <source>Madagascar</source>
        <translation>Madagascar</translation>
    </message>
    <message>
        <source>Malawi</source>
        <translation>Malaui</translation>
    </message>
    <message>
        <source>Malaysia</source>
        <translation>Malásia</translation>
    </message>
    <message>
        <source>Maldives</source>
        <translation>Maldivas</translation>
    </message>
    <message>
        <source>Mali</source>
        <translation>Mali</translation>
    </message>
    <message>
        <source>Malta</source>
        <translation>Malta</translation>
    </message>
    <message>
        <source>Marshall Islands</source>
        <translation>Ilhas Marshall</translation>
    </message>
    <message>
        <source>Martinique</source>
        <translation>Martinica</translation>
    </message>
    <message>
        <source>Mauritania</source>
        <translation>Mauritânia</translation>
    </message>
    <message>
        <source>Mauritius</source>
        <translation>Maurício</translation>
    </message>
    <message>
        <source>Mayotte</source>
        <translation>Maiote</translation>
    </message>
    <message>
        <source>Mexico</source>
        <translation>México</translation>
    </message>
    <message>
        <source>Micronesia, Federated States of</source>
        <translation>Micronésia, Estados Federados da</translation>
    </message>
    <message>
        <source>Moldova, Republic of</source>
        <translation>Moldávia</translation>
    </message>
    <message>
        <source>Monaco</source>
        <translation>Mônaco</translation>
    </message>
    <message>
        <source>Mongolia</source>
        <translation>Mongólia</translation>
    </message>
    <message>
        <source>Montenegro</source>
        <translation>Montenegro</translation>
    </message>
    <message>
        <source>Montserrat</source>
        <translation>Montserrat</translation>
    </message>
    <message>
        <source>Morocco</source>
        <translation>Marrocos</translation>
    </message>
    <message>
        <source>Mozambique</source>
        <translation>Moçambique</translation>
    </message>
    <message>
        <source>Myanmar</source>
        <translation>Myanmar</translation>
    </message>
    <message>
        <source>Namibia</source>
        <translation>Namíbia</translation>
    </message>
    <message>
        <source>Nauru</source>
        <translation>Nauru</translation>
    </message>
    <message>
        <source>Nepal</source>
        <translation>Nepal</translation>
    </message>
    <message>
        <source>Netherlands</source>
        <translation>Países Baixos</translation>
    </message>
    <message>
        <source>New Caledonia</source>
        <translation>Nova Caledônia</translation>
    </message>
    <message>
        <source>New Zealand</source>
        <translation>Nova Zelândia</translation>
    </message>
    <message>
        <source>Nicaragua</source>
        <translation>Nicarágua</translation>
    </message>
    <message>
        <source>Niger</source>
        <translation>Níger</translation>
    </message>
    <message>
        <source>Nigeria</source>
        <translation>Nigéria</translation>
    </message>
    <message>
        <source>Niue</source>
        <translation>Niue</translation>
    </message>
    <message>
        <source>Norfolk Island</source>
        <translation>Ilha Norfolk</translation>
    </message>
    <message>
        <source>Northern Mariana Islands</source>
        <translation>Ilhas Marianas do Norte</translation>
    </message>
    <message>
        <source>Norway</source>
        <translation>Noruega</translation>
    </message>
    <message>
        <source>Oman</source>
        <translation>Omã</translation>
    </message>
    <message>
        <source>Pakistan</source>
        <translation>Paquistão</translation>
    </message>
    <message>
        <source>Palau</source>
        <translation>Palau</translation>
    </message>
    <message>
        <source>Palestinian Territory, Occupied</source>
        <translation>Palestina, Estado da</translation>
    </message>
    <message>
        <source>Panama</source>
        <translation>Panamá</translation>
    </message>
    <message>
        <source>Papua New Guinea</source>
        <translation>Papua-Nova Guiné</translation>
    </message>
    <message>
        <source>Paraguay</source>
        <translation>Paraguai</translation>
    </message>
    <message>
        <source>Peru</source>
        <translation>Peru</translation>
    </message>
    <message>
        <source>Philippines</source>
        <translation>Filipinas</translation>
    </message>
    <message>
        <source>Poland</source>
        <translation>Polônia</translation>
    </message>
    <message>
        <source>Portugal</source>
        <translation>Portugal</translation>
    </message>
    <message>
        <source>Puerto Rico</source>
        <translation>Porto Rico</translation>
    </message>
    <message>
        <source>Qatar</source>
        <translation>Catar</translation>
    </message>
    <message>
        <source>Reunion</source>
        <translation>Reunião</translation>
    </message>
    <message>
        <source>Romania</source>
        <translation>Romênia</translation>
    </message>
    <message>
        <source>Russian Federation</source>
        <translation>Federação Russa</translation>
    </message>
    <message>
        <source>Rwanda</source>
        <translation>Ruanda</translation>
    </message>
    <message>
        <source>Saint Helena</source>
        <translation>Santa Helena, Ascensão e Tristão da Cunha</translation>
    </message>
    <message>
        <source>Saint Kitts and Nevis</source>
        <translation>São Cristóvão e Névis</translation>
    </message>
    <message>
        <source>Saint Lucia</source>
        <translation>Santa Lúcia</translation>
    </message>
    <message>
        <source>Saint Pierre and Miquelon</source>
        <translation>São Pedro e Miquelon</translation>
    </message>
    <message>
        <source>Saint Vincent and the Grenadines</source>
        <translation>São Vicente e Granadinas</translation>
    </message>
    <message>
        <source>Samoa</source>
        <translation>Samoa</translation>
    </message>
    <message>
        <source>San Marino</source>
        <translation>São Marino</translation>
    </message>
    <message>
        <source>Sao Tome and Principe</source>
        <translation>São Tomé e Príncipe</translation>
    </message>
    <message>
        <source>Saudi Arabia</source>
        <translation>Arábia Saudita</translation>
    </message>
    <message>
        <source>Senegal</source>
        <translation>Senegal</translation>
    </message>
    <message>
        <source>Serbia</source>
        <translation>Sérvia</translation>
    </message>
    <message>
        <source>Seychelles</source>
        <translation>Seychelles</translation>
    </message>
    <message>
        <source>Sierra Leone</source>
        <translation>Serra Leoa</translation>
    </message>
    <message>
        <source>Singapore</source>
        <translation>Cingapura</translation>
    </message>
    <message>
        <source>Slovakia</source>
        <translation>Eslováquia</translation>
    </message>
    <message>
        <source>Slovenia</source>
        <translation>Eslovênia</translation>
    </message>
    <message>
        <source>Solomon Islands</source>
        <translation>Ilhas Salomão</translation>
    </message>
    <message>
        <source>Somalia</source>
        <translation>Somália</translation>
    </message>
    <message>
        <source>South Africa</source>
        <translation>África do Sul</translation>
    </message>
    <message>
        <source>South Sudan</source>
        <translation>Sudão do Sul</translation>
    </message>
    <message>
        <source>Spain</source>
        <translation>Espanha</translation>
    </message>
    <message>
        <source>Sri Lanka</source>
        <translation>Sri Lanka</translation>
    </message>
    <message>
        <source>Sudan</source>
        <translation>Sudão</translation>
    </message>
    <message>
        <source>Suriname</source>
        <translation>Suriname</translation>
    </message>
    <message>
        <source>Swaziland</source>
        <translation>Suazilândia</translation>
    </message>
    <message>
        <source>Sweden</source>
        <translation>Suécia</translation>
    </message>
    <message>
        <source>Switzerland</source>
        <translation>Suíça</translation>
    </message>
    <message>
        <source>Syrian Arab Republic</source>
        <translation>República Árabe da Síria</translation>
    </message>
    <message>
        <source>Taiwan (China)</source>
        <translation>Taiwan</translation>
    </message>
    <message>
        <source>Tajikistan</source>
        <translation>Tadjiquistão</translation>
    </message>
    <message>
        <source>Tanzania, United Republic of</source>
        <translation>Tanzânia</translation>
    </message>
    <message>
        <source>Thailand</source>
        <translation>Tailândia</translation>
    </message>
    <message>
        <source>Timor-Leste</source>
        <translation>Timor Leste</translation>
    </message>
    <message>
        <source>Togo</source>
        <translation>Togo</translation>
    </message>
    <message>
        <source>Tokelau</source>
        <translation>Toquelau</translation>
    </message>
    <message>
        <source>Tonga</source>
        <translation>Tonga</translation>
    </message>
    <message>
        <source>Trinidad and Tobago</source>
        <translation>Trinidade e Tobago</translation>
    </message>
    <message>
        <source>Tunisia</source>
        <translation>Tunísia</translation>
    </message>
    <message>
        <source>Turkey</source>
        <translation>Turquia</translation>
    </message>
    <message>
        <source>Turkmenistan</source>
        <translation>Turcomenistão</translation>
    </message>
    <message>
        <source>Turks and Caicos Islands</source>
        <translation>Ilhas Turks e Caicos</translation>
    </message>
    <message>
        <source>Tuvalu</source>
        <translation>Tuvalu</translation>
    </message>
    <message>
        <source>Uganda</source>
        <translation>Uganda</translation>
    </message>
    <message>
        <source>Ukraine</source>
        <translation>Ucrânia</translation>
    </message>
    <message>
        <source>United Arab Emirates</source>
        <translation>Emirados Árabes Unidos</translation>
    </message>
    <message>
        <source>United Kingdom</source>
        <translation>Reino Unido</translation>
    </message>
    <message>
        <source>United States</source>
        <translation>Estados Unidos</translation>
    </message>
    <message>
        <source>Uruguay</source>
        <translation>Uruguai</translation>
    </message>
    <message>
        <source>Uzbekistan</source>
        <translation>Uzbequistão</translation>
    </message>
    <message>
        <source>Vanuatu</source>
        <translation>Vanuatu</translation>
    </message>
    <message>
        <source>Venezuela</source>
        <translation>Venezuela</translation>
    </message>
    <message>
        <source>Viet Nam</source>
        <translation>Vietnã</translation>
    </message>
    <message>
        <source>Virgin Islands, British</source>
        <translation>Ilhas Virgens Britânicas</translation>
    </message>
    <message>
        <source>Virgin Islands, U.S.</source>
        <translation>Ilhas Virgens dos Estados Unidos</translation>
    </message>
    <message>
        <source>Wallis and Futuna</source>
        <translation>Wallis e Futuna</translation>
    </message>
    <message>
        <source>Western Sahara</source>
        <translation>Saara Ocidental</translation>
    </message>
    <message>
        <source>Yemen</source>
        <translation>Iêmen</translation>
    </message>
    <message>
        <source>Zambia</source>
        <translation>Zâmbia</translation>
    </message>
    <message>
        <source>Zimbabwe</source>
        <translation>Zimbábue</translation>
    </message>
</context>
<context>
    <name>DesktopAnswer</name>
    <message>
        <source>tovra: no location matches “%1”</source>
        <translation>tovra: nenhuma localização corresponde a &quot;%1&quot;</translation>
    </message>
    <message>
        <source>tovra: Tovra is busy with another connection or sign-in; try again when it has finished</source>
        <translation>tovra: o Tovra está ocupado com outra conexão ou login; tente novamente quando terminar</translation>
    </message>
    <message>
        <source>tovra: sign in to Tovra before connecting</source>
        <translation>tovra: entre no Tovra antes de conectar</translation>
    </message>
    <message>
        <source>tovra: your plan does not include “%1”</source>
        <translation>tovra: seu plano não inclui &quot;%1&quot;</translation>
    </message>
    <message>
        <source>tovra: the request failed</source>
        <translation>tovra: a solicitação falhou</translation>
    </message>
    <message>
        <source>tovra: %1</source>
        <translation>tovra: %1</translation>
    </message>
</context>
<context>
    <name>DesktopCommandLine</name>
    <message>
        <source>tovra: give only one of %1</source>
        <translation>tovra: informe apenas uma destas opções: %1</translation>
    </message>
</context>
<context>
    <name>DesktopCommandSender</name>
    <message>
        <source>could not start Tovra</source>
        <translation>não foi possível iniciar o Tovra</translation>
    </message>
    <message>
        <source>Tovra did not start</source>
        <translation>o Tovra não iniciou</translation>
    </message>
    <message>
        <source>the running Tovra is an older version: it came to the front but did not act on the request; quit it and try again</source>
        <translation>o Tovra em execução é uma versão mais antiga: ele veio para a frente, mas não atendeu à solicitação; feche-o e tente novamente</translation>
    </message>
    <message>
        <source>the running Tovra did not answer</source>
        <translation>o Tovra em execução não respondeu</translation>
    </message>
</context>
<context>
    <name>DiagnosticsSection</name>
    <message>
        <source>Configuration</source>
        <extracomment>Label of a folder path: where the service keeps its configuration</extracomment>
        <translation>Configuração</translation>
    </message>
    <message>
        <source>Runtime</source>
        <extracomment>Label of a folder path: where the service keeps its running files (socket, PID file); not a duration</extracomment>
        <translation>Dados de execução</translation>
    </message>
    <message>
        <source>Logs</source>
        <extracomment>Label of a folder path: the service&apos;s log folder</extracomment>
        <translation>Registros</translation>
    </message>
    <message>
        <source>State file</source>
        <extracomment>Label of a file path</extracomment>
        <translation>Arquivo de estado</translation>
    </message>
    <message>
        <source>Credentials key</source>
        <extracomment>Label of a file path: the key file for the stored account credentials</extracomment>
        <translation>Chave de credenciais</translation>
    </message>
    <message>
        <source>History</source>
        <extracomment>Label of a file path: the service&apos;s history file</extracomment>
        <translation>Histórico</translation>
    </message>
    <message>
        <source>Profiles</source>
        <extracomment>Label of a folder path: the service&apos;s profiles folder</extracomment>
        <translation>Perfis</translation>
    </message>
    <message>
        <source>Control socket</source>
        <extracomment>Label of a file path: the socket this app talks to the service through</extracomment>
        <translation>Socket de controle</translation>
    </message>
    <message>
        <source>PID file</source>
        <extracomment>Label of a file path</extracomment>
        <translation>Arquivo PID</translation>
    </message>
    <message>
        <source>Control address</source>
        <extracomment>Label of an address the service listens on for control requests</extracomment>
        <translation>Endereço de controle</translation>
    </message>
    <message>
        <source>Diagnostics</source>
        <translation>Diagnóstico</translation>
    </message>
    <message>
        <source>Repair</source>
        <extracomment>Button that resets the kill switch, local proxy and tunnel</extracomment>
        <translation>Reparar</translation>
    </message>
    <message>
        <source>Open logs</source>
        <extracomment>Button that opens the log folder</extracomment>
        <translation>Abrir registros</translation>
    </message>
    <message>
        <source>Repair connection</source>
        <translation>Reparar conexão</translation>
    </message>
    <message>
        <source>Resets the kill switch, the local proxy and the tunnel when traffic is stuck.</source>
        <translation>Redefine o Kill Switch, o proxy local e o túnel quando o tráfego fica travado.</translation>
    </message>
    <message>
        <source>The Tovra service&apos;s log folder, for support.</source>
        <translation>A pasta de registros do serviço Tovra, para o suporte.</translation>
    </message>
    <message>
        <source>Copy</source>
        <extracomment>Button that copies the path next to it</extracomment>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Copy %1 path</source>
        <extracomment>%1 is one of the path labels above, such as &quot;Runtime&quot;</extracomment>
        <translation>Copiar caminho: %1</translation>
    </message>
    <message>
        <source>Service paths</source>
        <translation>Caminhos do serviço</translation>
    </message>
    <message>
        <source>Where the Tovra service keeps its files.</source>
        <translation>Onde o serviço Tovra guarda seus arquivos.</translation>
    </message>
    <message>
        <source>Tovra service version</source>
        <translation>Versão do serviço Tovra</translation>
    </message>
    <message>
        <source>Control protocol</source>
        <translation>Protocolo de controle</translation>
    </message>
    <message>
        <source>This app speaks version 1.</source>
        <translation>Este aplicativo usa a versão 1.</translation>
    </message>
    <message>
        <source>Not set</source>
        <translation>Não definido</translation>
    </message>
    <message>
        <source>%1, not compatible</source>
        <translation>%1, incompatível</translation>
    </message>
</context>
<context>
    <name>FieldClearButton</name>
    <message>
        <source>Clear search</source>
        <translation>Limpar pesquisa</translation>
    </message>
    <message>
        <source>Clear text</source>
        <translation>Limpar texto</translation>
    </message>
</context>
<context>
    <name>GuiAutostart</name>
    <message>
        <source>Login startup is not supported on this platform.</source>
        <translation>A inicialização automática não é suportada nesta plataforma.</translation>
    </message>
    <message>
        <source>Could not resolve the Tovra executable for login startup.</source>
        <translation>Não foi possível localizar o executável do Tovra para a inicialização automática.</translation>
    </message>
    <message>
        <source>Could not prepare the login startup directory.</source>
        <translation>Não foi possível preparar a pasta de inicialização automática.</translation>
    </message>
    <message>
        <source>Could not update Tovra login startup.</source>
        <translation>Não foi possível atualizar a inicialização automática do Tovra.</translation>
    </message>
    <message>
        <source>Could not secure Tovra login startup.</source>
        <translation>Não foi possível proteger a inicialização automática do Tovra.</translation>
    </message>
    <message>
        <source>Could not remove Tovra from login startup.</source>
        <translation>Não foi possível remover o Tovra da inicialização automática.</translation>
    </message>
</context>
<context>
    <name>KeyboardShortcutsDialog</name>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Atalhos de teclado</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Atalhos de teclado</translation>
    </message>
    <message>
        <source>These keys work anywhere in the Tovra window. Tab moves between controls.</source>
        <translation>Estas teclas funcionam em qualquer lugar da janela do Tovra. Tab passa de um controle para outro.</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Teclas</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Ação</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Button that closes the keyboard shortcuts list</extracomment>
        <translation>Fechar</translation>
    </message>
</context>
<context>
    <name>KillSwitchConfirm</name>
    <message>
        <source>Unavailable</source>
        <translation>Indisponível</translation>
    </message>
    <message>
        <source>Lockdown</source>
        <translation>Bloqueio total</translation>
    </message>
    <message>
        <source>Lockdown unavailable</source>
        <translation>Bloqueio total indisponível</translation>
    </message>
    <message>
        <source>On</source>
        <extracomment>State of the kill switch: turned on</extracomment>
        <translation>Ativado</translation>
    </message>
    <message>
        <source>Off</source>
        <extracomment>State of the kill switch: turned off</extracomment>
        <translation>Desativado</translation>
    </message>
    <message>
        <source>Kill Switch needs a VPN mode</source>
        <translation>O Kill Switch precisa de um modo VPN</translation>
    </message>
    <message>
        <source>Kill Switch can’t run in Tovra Proxy. Switch to Auto (recommended), TovraVPN, or WireGuard to enable it.</source>
        <translation>O Kill Switch não funciona no Tovra Proxy. Mude para Automático (recomendado), TovraVPN ou WireGuard para ativá-lo.</translation>
    </message>
    <message>
        <source>Switch to Auto and enable</source>
        <extracomment>Button that switches to the Auto mode and turns the kill switch on</extracomment>
        <translation>Mudar para Automático e ativar</translation>
    </message>
    <message>
        <source>Switch to Auto and enable Kill Switch</source>
        <translation>Mudar para Automático e ativar o Kill Switch</translation>
    </message>
    <message>
        <source>Choose mode…</source>
        <extracomment>Button that opens the Mode page to pick a VPN mode</extracomment>
        <translation>Escolher modo…</translation>
    </message>
    <message>
        <source>Choose a mode for Kill Switch</source>
        <translation>Escolha um modo para o Kill Switch</translation>
    </message>
    <message>
        <source>Cancel</source>
        <extracomment>Button</extracomment>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Tovra Proxy needs Kill Switch off</source>
        <translation>O Tovra Proxy precisa do Kill Switch desativado</translation>
    </message>
    <message>
        <source>Kill Switch blocks Tovra Proxy. Turn Kill Switch off in Settings first, then switch modes.</source>
        <translation>O Kill Switch bloqueia o Tovra Proxy. Desative primeiro o Kill Switch nas Configurações e depois mude de modo.</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <extracomment>Button that opens the Settings page</extracomment>
        <translation>Abrir Configurações</translation>
    </message>
    <message>
        <source>Open Settings to turn off Kill Switch</source>
        <translation>Abrir Configurações para desativar o Kill Switch</translation>
    </message>
</context>
<context>
    <name>KillSwitchSection</name>
    <message>
        <source>Kill Switch</source>
        <translation>Kill Switch</translation>
    </message>
    <message>
        <source>Block traffic outside the tunnel</source>
        <translation>Bloquear tráfego fora do túnel</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>Automático</translation>
    </message>
    <message>
        <source>Blocks traffic outside the tunnel while Tovra is connected or connecting.</source>
        <translation>Bloqueia o tráfego fora do túnel enquanto o Tovra está conectado ou conectando.</translation>
    </message>
    <message>
        <source>Always</source>
        <translation>Sempre</translation>
    </message>
    <message>
        <source>Blocks traffic outside the tunnel whenever Kill Switch is on, even while disconnected.</source>
        <translation>Bloqueia o tráfego fora do túnel sempre que o Kill Switch está ativado, mesmo desconectado.</translation>
    </message>
    <message>
        <source>Lockdown</source>
        <translation>Bloqueio total</translation>
    </message>
    <message>
        <source>Set by the Tovra service: traffic outside the tunnel stays blocked and Kill Switch cannot be turned off here.</source>
        <translation>Definido pelo serviço Tovra: o tráfego fora do túnel continua bloqueado e o Kill Switch não pode ser desativado aqui.</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Modo</translation>
    </message>
    <message>
        <source>When Kill Switch blocks traffic.</source>
        <translation>Quando o Kill Switch bloqueia o tráfego.</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Rede local</translation>
    </message>
    <message>
        <source>Whether printers, shares and other devices nearby stay reachable while traffic is blocked.</source>
        <translation>Se impressoras, compartilhamentos e outros dispositivos próximos continuam acessíveis enquanto o tráfego está bloqueado.</translation>
    </message>
    <message>
        <source>Kill Switch mode: %1</source>
        <translation>Modo do Kill Switch: %1</translation>
    </message>
    <message>
        <source>Now: %1</source>
        <translation>Agora: %1</translation>
    </message>
    <message>
        <source>%1. The Tovra service holds Kill Switch on; it cannot be turned off here.</source>
        <translation>%1. O serviço Tovra mantém o Kill Switch ativado; não é possível desativá-lo aqui.</translation>
    </message>
    <message>
        <source>Tovra Proxy is in use: Kill Switch needs a VPN mode.</source>
        <translation>O Tovra Proxy está em uso: o Kill Switch precisa de um modo VPN.</translation>
    </message>
    <message>
        <source>Reachable</source>
        <translation>Acessível</translation>
    </message>
    <message>
        <source>Blocked</source>
        <translation>Bloqueada</translation>
    </message>
</context>
<context>
    <name>LanguagePickerDialog</name>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>Use system language</source>
        <translation>Usar idioma do sistema</translation>
    </message>
    <message>
        <source>Use system language (%1)</source>
        <translation>Usar idioma do sistema (%1)</translation>
    </message>
    <message>
        <source>Follow the desktop&apos;s language</source>
        <translation>Seguir o idioma da área de trabalho</translation>
    </message>
    <message>
        <source>Choose a language</source>
        <translation>Escolha um idioma</translation>
    </message>
    <message>
        <source>Tovra restarts to show the new language.</source>
        <translation>O Tovra será reiniciado para exibir o novo idioma.</translation>
    </message>
    <message>
        <source>Search languages</source>
        <translation>Pesquisar idiomas</translation>
    </message>
    <message>
        <source>Languages</source>
        <translation>Idiomas</translation>
    </message>
    <message>
        <source>Use language</source>
        <extracomment>Button that switches to the chosen language</extracomment>
        <translation>Usar idioma</translation>
    </message>
</context>
<context>
    <name>LocationItemDelegate</name>
    <message>
        <source>%1 ms</source>
        <translation>%1 ms</translation>
    </message>
</context>
<context>
    <name>LocationsEmptyState</name>
    <message>
        <source>The Tovra service is not available.
Locations appear here as soon as it responds.</source>
        <translation>O serviço Tovra não está disponível.
As localizações aparecerão aqui assim que ele responder.</translation>
    </message>
    <message>
        <source>Loading locations...</source>
        <translation>Carregando localizações...</translation>
    </message>
    <message>
        <source>The service has no locations to offer right now.
Try Refresh in a moment.</source>
        <translation>O serviço não tem localizações disponíveis no momento.
Tente Atualizar daqui a pouco.</translation>
    </message>
    <message>
        <source>No favourites yet.
Star a location (or select it and press Space) to keep it here.</source>
        <translation>Nenhum favorito ainda.
Marque uma localização com a estrela (ou selecione-a e pressione Espaço) para mantê-la aqui.</translation>
    </message>
    <message>
        <source>No locations in this tab.</source>
        <translation>Nenhuma localização nesta aba.</translation>
    </message>
    <message>
        <source>Nothing matches “%1”.
Try a country, a city or a code such as “de”.</source>
        <translation>Nada corresponde a “%1”.
Tente um país, uma cidade ou um código como “de”.</translation>
    </message>
    <message>
        <source>Could not load the locations: %1
Press Refresh to try again.</source>
        <extracomment>%1 is the service&apos;s own error text</extracomment>
        <translation>Não foi possível carregar as localizações: %1
Pressione Atualizar para tentar novamente.</translation>
    </message>
</context>
<context>
    <name>LocationsFavoriteButton</name>
    <message>
        <source>Remove from favourites</source>
        <translation>Remover dos favoritos</translation>
    </message>
    <message>
        <source>Add to favourites</source>
        <translation>Adicionar aos favoritos</translation>
    </message>
    <message>
        <source>Select a location in the list to star it</source>
        <translation>Selecione uma localização na lista para marcá-la com a estrela</translation>
    </message>
    <message>
        <source>Remove %1 from favourites</source>
        <translation>Remover %1 dos favoritos</translation>
    </message>
    <message>
        <source>Add %1 to favourites</source>
        <translation>Adicionar %1 aos favoritos</translation>
    </message>
</context>
<context>
    <name>LocationsPage</name>
    <message>
        <source>All locations</source>
        <translation>Todas as localizações</translation>
    </message>
    <message>
        <source>Double-click a location to connect to it, or a country or city to connect to its fastest location.</source>
        <translation>Clique duas vezes em uma localização para se conectar a ela, ou em um país ou cidade para se conectar à localização mais rápida.</translation>
    </message>
    <message>
        <source>Search countries, cities, locations or P2P</source>
        <translation>Pesquisar países, cidades, localizações ou P2P</translation>
    </message>
    <message>
        <source>Search locations</source>
        <translation>Pesquisar localizações</translation>
    </message>
    <message>
        <source>None of the locations in %1 is included in your plan.</source>
        <translation>Nenhuma das localizações em %1 está incluída no seu plano.</translation>
    </message>
    <message>
        <source>%1 is not included in your plan. Upgrade to use it.</source>
        <translation>Seu plano não inclui %1. Faça upgrade para usar esta localização.</translation>
    </message>
    <message>
        <source>Location actions</source>
        <translation>Ações da localização</translation>
    </message>
    <message>
        <source>Connect to the fastest location</source>
        <translation>Conectar à localização mais rápida</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Conectar</translation>
    </message>
    <message>
        <source>Collapse</source>
        <translation>Recolher</translation>
    </message>
    <message>
        <source>Expand</source>
        <translation>Expandir</translation>
    </message>
    <message>
        <source>Remove from favourites</source>
        <translation>Remover dos favoritos</translation>
    </message>
    <message>
        <source>Add to favourites</source>
        <translation>Adicionar aos favoritos</translation>
    </message>
</context>
<context>
    <name>LocationsStatusLine</name>
    <message>
        <source>Matches in every tab: %1</source>
        <translation>Resultados em todas as abas: %1</translation>
    </message>
    <message>
        <source>Locations: %1</source>
        <translation>Localizações: %1</translation>
    </message>
    <message>
        <source>Connected to %1</source>
        <translation>Conectado a %1</translation>
    </message>
    <message>
        <source>Measuring latency...</source>
        <translation>Medindo a latência...</translation>
    </message>
    <message>
        <source>This list may be out of date; Refresh fetches a new one.</source>
        <translation>Esta lista pode estar desatualizada; Atualizar busca uma nova.</translation>
    </message>
    <message>
        <source>Grouping by region until the service&apos;s groups arrive.</source>
        <translation>Agrupando por região até chegarem os grupos do serviço.</translation>
    </message>
</context>
<context>
    <name>LocationsToolbar</name>
    <message>
        <source>All</source>
        <translation>Todas</translation>
    </message>
    <message>
        <source>Free</source>
        <translation>Grátis</translation>
    </message>
    <message>
        <source>Premium</source>
        <translation>Premium</translation>
    </message>
    <message>
        <source>Favourites</source>
        <translation>Favoritos</translation>
    </message>
    <message>
        <source>Location tabs</source>
        <translation>Abas de localizações</translation>
    </message>
    <message>
        <source>Sort locations</source>
        <translation>Ordenar localizações</translation>
    </message>
    <message>
        <source>Service order</source>
        <translation>Ordem do serviço</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Latency</source>
        <translation>Latência</translation>
    </message>
    <message>
        <source>Order of the locations within each group</source>
        <translation>Ordem das localizações dentro de cada grupo</translation>
    </message>
    <message>
        <source>Fetch the list of locations again and measure their latency</source>
        <translation>Buscar novamente a lista de localizações e medir a latência</translation>
    </message>
    <message>
        <source>Refresh (%1s)</source>
        <extracomment>Button, disabled for %1 more seconds before the list can be fetched again</extracomment>
        <translation>Atualizar (%1 s)</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Atualizar</translation>
    </message>
    <message>
        <source>Refresh locations, possible again in %1 s</source>
        <translation>Atualizar localizações; disponível novamente em %1 s</translation>
    </message>
    <message>
        <source>Refresh locations</source>
        <translation>Atualizar localizações</translation>
    </message>
</context>
<context>
    <name>LocationsTreeView</name>
    <message>
        <source>Locations</source>
        <translation>Localizações</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Tovra</source>
        <translation>Tovra</translation>
    </message>
    <message>
        <source>VPN</source>
        <translation>VPN</translation>
    </message>
    <message>
        <source>Operation failed</source>
        <extracomment>Shown when a request to the Tovra service failed without a reason. Word it as a user would understand it: &quot;Could not complete the action&quot;</extracomment>
        <translation>Não foi possível concluir a ação</translation>
    </message>
    <message>
        <source>Settings operation failed</source>
        <extracomment>Shown when changing a setting failed without a reason. Word it as a user would understand it: &quot;Could not change the settings&quot;</extracomment>
        <translation>Não foi possível alterar as configurações</translation>
    </message>
    <message>
        <source>Mode operation failed</source>
        <extracomment>Shown when changing the mode failed without a reason. Word it as a user would understand it: &quot;Could not change the mode&quot;</extracomment>
        <translation>Não foi possível mudar o modo</translation>
    </message>
</context>
<context>
    <name>ModeChoiceCard</name>
    <message>
        <source>Tovra picks the protocol that works best here.</source>
        <translation>O Tovra escolhe o protocolo que funciona melhor aqui.</translation>
    </message>
    <message>
        <source>A fast, modern tunnel for all your traffic.</source>
        <translation>Um túnel rápido e moderno para todo o seu tráfego.</translation>
    </message>
    <message>
        <source>All traffic goes through the TovraVPN tunnel.</source>
        <translation>Todo o tráfego passa pelo túnel do TovraVPN.</translation>
    </message>
    <message>
        <source>The tunnel by default; chosen regions and sites go direct.</source>
        <translation>O túnel por padrão; as regiões e os sites escolhidos vão direto.</translation>
    </message>
    <message>
        <source>No tunnel: apps that use the local proxy reach the internet through Tovra.</source>
        <translation>Sem túnel: os aplicativos que usam o proxy local acessam a internet pelo Tovra.</translation>
    </message>
    <message>
        <source>The local proxy, with chosen regions and sites going direct.</source>
        <translation>O proxy local, com as regiões e os sites escolhidos indo direto.</translation>
    </message>
    <message>
        <source>Applying…</source>
        <translation>Aplicando…</translation>
    </message>
    <message>
        <source>Kill Switch needs a VPN mode: pick Auto, WireGuard or TovraVPN to turn it on.</source>
        <translation>O Kill Switch precisa de um modo VPN: escolha Automático, WireGuard ou TovraVPN para ativá-lo.</translation>
    </message>
    <message>
        <source>Choose a mode</source>
        <translation>Escolha um modo</translation>
    </message>
    <message>
        <source>The current mode shows once the Tovra service answers.</source>
        <translation>O modo atual aparecerá quando o serviço Tovra responder.</translation>
    </message>
    <message>
        <source>Current mode: %1. This version of Tovra does not know it; choose one of the modes above to replace it.</source>
        <translation>Modo atual: %1. Esta versão do Tovra não o reconhece; escolha um dos modos acima para substituí-lo.</translation>
    </message>
</context>
<context>
    <name>ModePage</name>
    <message>
        <source>Auto</source>
        <translation>Automático</translation>
    </message>
    <message>
        <source>WireGuard</source>
        <translation>WireGuard</translation>
    </message>
    <message>
        <source>TovraVPN Split</source>
        <translation>TovraVPN dividido</translation>
    </message>
    <message>
        <source>TovraVPN Global</source>
        <translation>TovraVPN Global</translation>
    </message>
    <message>
        <source>Tovra Proxy Split</source>
        <translation>Tovra Proxy dividido</translation>
    </message>
    <message>
        <source>Tovra Proxy Global</source>
        <translation>Tovra Proxy Global</translation>
    </message>
    <message>
        <source>Routing mode</source>
        <translation>Modo de roteamento</translation>
    </message>
    <message>
        <source>Choose how your traffic is routed and which sites bypass the tunnel.</source>
        <translation>Escolha como o seu tráfego é roteado e quais sites ficam fora do túnel.</translation>
    </message>
</context>
<context>
    <name>NavigationSidebar</name>
    <message>
        <source>Locations</source>
        <translation>Localizações</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Modo</translation>
    </message>
    <message>
        <source>VPN</source>
        <translation>VPN</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Configurações</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Conta</translation>
    </message>
</context>
<context>
    <name>NetworkOptionsCard</name>
    <message>
        <source>Local network</source>
        <translation>Rede local</translation>
    </message>
    <message>
        <source>System proxy</source>
        <translation>Proxy do sistema</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Rede</translation>
    </message>
    <message>
        <source>Direct</source>
        <extracomment>Local network option: devices nearby are reached outside the tunnel</extracomment>
        <translation>Direta</translation>
    </message>
    <message>
        <source>Printers, shares and other devices on your network stay reachable</source>
        <translation>Impressoras, compartilhamentos e outros dispositivos da sua rede continuam acessíveis</translation>
    </message>
    <message>
        <source>Protected</source>
        <extracomment>Local network option: local traffic goes through the tunnel like the rest</extracomment>
        <translation>Protegida</translation>
    </message>
    <message>
        <source>Local network traffic is protected like the rest</source>
        <translation>O tráfego da rede local é protegido como o restante</translation>
    </message>
    <message>
        <source>Off</source>
        <extracomment>System proxy option: the desktop proxy settings are left alone</extracomment>
        <translation>Desativado</translation>
    </message>
    <message>
        <source>The desktop&apos;s proxy settings are left alone</source>
        <translation>As configurações de proxy da área de trabalho não são alteradas</translation>
    </message>
    <message>
        <source>On</source>
        <extracomment>System proxy option: the desktop proxy settings point at Tovra</extracomment>
        <translation>Ativado</translation>
    </message>
    <message>
        <source>The desktop&apos;s proxy settings point at Tovra</source>
        <translation>As configurações de proxy da área de trabalho apontam para o Tovra</translation>
    </message>
    <message>
        <source>Lock</source>
        <extracomment>System proxy option, a state rather than an action: the desktop proxy settings point at Tovra and other programs cannot change them</extracomment>
        <translation>Travado</translation>
    </message>
    <message>
        <source>The desktop&apos;s proxy settings point at Tovra and are kept so</source>
        <translation>As configurações de proxy da área de trabalho apontam para o Tovra e são mantidas assim</translation>
    </message>
    <message>
        <source>Whether devices on your local network stay reachable while Tovra routes your traffic.</source>
        <translation>Se os dispositivos da sua rede local continuam acessíveis enquanto o Tovra roteia o seu tráfego.</translation>
    </message>
    <message>
        <source>Point the desktop&apos;s proxy settings at Tovra, or also keep other programs from changing them.</source>
        <translation>Aponte as configurações de proxy da área de trabalho para o Tovra ou impeça também que outros programas as alterem.</translation>
    </message>
</context>
<context>
    <name>NetworkSection</name>
    <message>
        <source>Network</source>
        <translation>Rede</translation>
    </message>
    <message>
        <source>SOCKS5 listener</source>
        <translation>Escuta SOCKS5</translation>
    </message>
    <message>
        <source>HTTP listener</source>
        <translation>Escuta HTTP</translation>
    </message>
    <message>
        <source>Apply listeners</source>
        <extracomment>Button that applies the SOCKS5 and HTTP listen addresses typed above</extracomment>
        <translation>Aplicar endereços de escuta</translation>
    </message>
    <message>
        <source>Local DNS servers</source>
        <translation>Servidores DNS locais</translation>
    </message>
    <message>
        <source>For example 192.168.1.1, ::1</source>
        <translation>Por exemplo, 192.168.1.1, ::1</translation>
    </message>
    <message>
        <source>Save servers</source>
        <extracomment>Button that saves the local DNS servers typed in the field</extracomment>
        <translation>Salvar servidores</translation>
    </message>
    <message>
        <source>Clear servers</source>
        <extracomment>Button that empties the list of local DNS servers</extracomment>
        <translation>Limpar servidores</translation>
    </message>
    <message>
        <source>Reset split DNS</source>
        <extracomment>Button that puts the split DNS settings back to their defaults</extracomment>
        <translation>Redefinir DNS dividido</translation>
    </message>
    <message>
        <source>Off</source>
        <extracomment>System proxy choice: the desktop proxy settings are left alone</extracomment>
        <translation>Desativado</translation>
    </message>
    <message>
        <source>On</source>
        <extracomment>System proxy choice: the desktop proxy settings point at Tovra</extracomment>
        <translation>Ativado</translation>
    </message>
    <message>
        <source>On and locked</source>
        <translation>Ativado e travado</translation>
    </message>
    <message>
        <source>System proxy</source>
        <translation>Proxy do sistema</translation>
    </message>
    <message>
        <source>Points the desktop&apos;s proxy settings at Tovra; locked keeps other programs from changing them.</source>
        <translation>Aponta as configurações de proxy da área de trabalho para o Tovra; travado impede que outros programas as alterem.</translation>
    </message>
    <message>
        <source>Direct</source>
        <extracomment>Local network choice: devices nearby are reached outside the tunnel</extracomment>
        <translation>Direta</translation>
    </message>
    <message>
        <source>Protected</source>
        <extracomment>Local network choice: local traffic goes through the tunnel like the rest</extracomment>
        <translation>Protegida</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Rede local</translation>
    </message>
    <message>
        <source>Direct reaches devices nearby outside the tunnel; protected sends everything through it.</source>
        <translation>Direta acessa os dispositivos próximos fora do túnel; protegida envia tudo por ele.</translation>
    </message>
    <message>
        <source>SOCKS5</source>
        <translation>SOCKS5</translation>
    </message>
    <message>
        <source>HTTP</source>
        <translation>HTTP</translation>
    </message>
    <message>
        <source>Local proxy listeners</source>
        <translation>Escutas do proxy local</translation>
    </message>
    <message>
        <source>Addresses where the daemon accepts proxy connections, as host:port. Leave a field empty to close that listener.</source>
        <translation>Endereços em que o serviço aceita conexões de proxy, no formato host:porta. Deixe um campo vazio para fechar essa escuta.</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automático</translation>
    </message>
    <message>
        <source>Local DNS</source>
        <translation>DNS local</translation>
    </message>
    <message>
        <source>Remote DNS</source>
        <translation>DNS remoto</translation>
    </message>
    <message>
        <source>Split DNS</source>
        <translation>DNS dividido</translation>
    </message>
    <message>
        <source>Which resolver answers for names that stay outside the tunnel.</source>
        <translation>Qual resolvedor responde pelos nomes que ficam fora do túnel.</translation>
    </message>
    <message>
        <source>IP addresses of the resolvers for local names, separated by commas.</source>
        <translation>Endereços IP dos resolvedores para nomes locais, separados por vírgulas.</translation>
    </message>
    <message>
        <source>In effect: %1</source>
        <translation>Em uso: %1</translation>
    </message>
    <message>
        <source>none</source>
        <translation>nenhum</translation>
    </message>
    <message>
        <source>In effect: %1, servers %2</source>
        <translation>Em uso: %1, servidores %2</translation>
    </message>
    <message>
        <source>(from %1)</source>
        <translation>(de %1)</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Desconhecido</translation>
    </message>
    <message>
        <source>(from the system settings)</source>
        <translation>(das configurações do sistema)</translation>
    </message>
    <message>
        <source>(from your list)</source>
        <translation>(da sua lista)</translation>
    </message>
</context>
<context>
    <name>NotificationHost</name>
    <message>
        <source>Dismiss notification</source>
        <translation>Dispensar notificação</translation>
    </message>
    <message>
        <source>Notification: %1</source>
        <translation>Notificação: %1</translation>
    </message>
</context>
<context>
    <name>QCoreApplication::ShellText</name>
    <message>
        <source>Custom split rules unchanged</source>
        <translation>Regras de divisão personalizadas inalteradas</translation>
    </message>
</context>
<context>
    <name>QCoreApplication::TrayMenuText</name>
    <message>
        <source>Connect</source>
        <translation>Conectar</translation>
    </message>
</context>
<context>
    <name>QuickEntryField</name>
    <message>
        <source>Search for a country, city or location</source>
        <translation>Pesquise um país, uma cidade ou uma localização</translation>
    </message>
    <message>
        <source>Quick connect search</source>
        <translation>Pesquisa de conexão rápida</translation>
    </message>
</context>
<context>
    <name>QuickEntryModel</name>
    <message>
        <source>Recent searches</source>
        <translation>Pesquisas recentes</translation>
    </message>
    <message>
        <source>Recent locations</source>
        <translation>Localizações recentes</translation>
    </message>
    <message>
        <source>Type a country, city or location name</source>
        <translation>Digite o nome de um país, cidade ou localização</translation>
    </message>
    <message>
        <source>No locations match “%1”</source>
        <translation>Nenhuma localização corresponde a “%1”</translation>
    </message>
    <message>
        <source>%1  ·  %2</source>
        <translation>%1  ·  %2</translation>
    </message>
</context>
<context>
    <name>QuickEntryPopup</name>
    <message>
        <source>Search results</source>
        <translation>Resultados da pesquisa</translation>
    </message>
</context>
<context>
    <name>SettingsCard</name>
    <message>
        <source>Unknown</source>
        <translation>Desconhecido</translation>
    </message>
</context>
<context>
    <name>SettingsPage</name>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Preferências</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>Aplicando configurações...</translation>
    </message>
    <message>
        <source>Changes take effect once the Tovra service confirms them.</source>
        <translation>As alterações entram em vigor quando o serviço Tovra as confirma.</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Configurações</translation>
    </message>
    <message>
        <source>Settings can be changed again once the Tovra service answers.</source>
        <translation>As configurações poderão ser alteradas novamente quando o serviço Tovra responder.</translation>
    </message>
    <message>
        <source>Waiting for the Tovra service...</source>
        <translation>Aguardando o serviço Tovra...</translation>
    </message>
</context>
<context>
    <name>SettingsRow</name>
    <message>
        <source>%1: %2</source>
        <comment>row title: help text</comment>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>SettingsValidator</name>
    <message>
        <source>Add a port: host:port, for example 127.0.0.1:1080.</source>
        <translation>Adicione uma porta: host:porta, por exemplo 127.0.0.1:1080.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an IPv6 address.</source>
        <translation>“%1” não é um endereço IPv6.</translation>
    </message>
    <message>
        <source>Write an IPv6 address in brackets: [::1]:1080.</source>
        <translation>Escreva o endereço IPv6 entre colchetes: [::1]:1080.</translation>
    </message>
    <message>
        <source>Add a host before the port: host:port.</source>
        <translation>Adicione um host antes da porta: host:porta.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a host name or IP address.</source>
        <translation>“%1” não é um nome de host nem um endereço IP.</translation>
    </message>
    <message>
        <source>Add a port after the colon: host:port.</source>
        <translation>Adicione uma porta depois dos dois-pontos: host:porta.</translation>
    </message>
    <message>
        <source>The port must be a number from 1 to 65535.</source>
        <translation>A porta deve ser um número de 1 a 65535.</translation>
    </message>
    <message>
        <source>Enter an API URL, or reset it to the default.</source>
        <translation>Informe uma URL da API ou restaure a padrão.</translation>
    </message>
    <message>
        <source>The API URL must start with http:// or https://.</source>
        <translation>A URL da API deve começar com http:// ou https://.</translation>
    </message>
    <message>
        <source>The API URL needs a host, for example https://api.example.com.</source>
        <translation>A URL da API precisa de um host, por exemplo https://api.example.com.</translation>
    </message>
    <message>
        <source>Enter at least one DNS server, or clear the list.</source>
        <translation>Informe pelo menos um servidor DNS ou limpe a lista.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an IP address.</source>
        <translation>“%1” não é um endereço IP.</translation>
    </message>
</context>
<context>
    <name>SplitOptionsCard</name>
    <message>
        <source>Choose TovraVPN Split or Tovra Proxy Split to send some traffic direct: by region, by the GFWList or by your own rules.</source>
        <translation>Escolha TovraVPN dividido ou Tovra Proxy dividido para enviar parte do tráfego direto: por região, pela GFWList ou por suas próprias regras.</translation>
    </message>
    <message>
        <source>Default route</source>
        <translation>Rota padrão</translation>
    </message>
    <message>
        <source>Direct</source>
        <extracomment>Default route choice: traffic goes straight to the internet, outside the tunnel or proxy</extracomment>
        <translation>Direta</translation>
    </message>
    <message>
        <source>Everything not chosen below goes direct</source>
        <translation>Tudo o que não for escolhido abaixo vai direto</translation>
    </message>
    <message>
        <source>Choose…</source>
        <extracomment>Button that opens the region picker</extracomment>
        <translation>Escolher…</translation>
    </message>
    <message>
        <source>Choose regions</source>
        <translation>Escolher regiões</translation>
    </message>
    <message>
        <source>Regions</source>
        <translation>Regiões</translation>
    </message>
    <message>
        <source>Custom split rules</source>
        <translation>Regras de divisão personalizadas</translation>
    </message>
    <message>
        <source>Edit rules…</source>
        <extracomment>Button that opens the custom split rules editor</extracomment>
        <translation>Editar regras…</translation>
    </message>
    <message>
        <source>Edit custom split rules</source>
        <translation>Editar regras de divisão personalizadas</translation>
    </message>
    <message>
        <source>Split routing</source>
        <translation>Roteamento dividido</translation>
    </message>
    <message>
        <source>TovraVPN Split options</source>
        <translation>Opções do TovraVPN dividido</translation>
    </message>
    <message>
        <source>Tovra Proxy Split options</source>
        <translation>Opções do Tovra Proxy dividido</translation>
    </message>
    <message>
        <source>Tunnel</source>
        <translation>Túnel</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>Everything not chosen below goes through the tunnel</source>
        <translation>Tudo o que não for escolhido abaixo passa pelo túnel</translation>
    </message>
    <message>
        <source>Everything not chosen below goes through the proxy</source>
        <translation>Tudo o que não for escolhido abaixo passa pelo proxy</translation>
    </message>
    <message>
        <source>Traffic goes direct unless a region, the GFWList or a rule says otherwise.</source>
        <translation>O tráfego vai direto, a menos que uma região, a GFWList ou uma regra indique o contrário.</translation>
    </message>
    <message>
        <source>Traffic goes through the tunnel unless a region or a rule sends it direct.</source>
        <translation>O tráfego passa pelo túnel, a menos que uma região ou uma regra o envie direto.</translation>
    </message>
    <message>
        <source>Traffic goes through the proxy unless a region or a rule sends it direct.</source>
        <translation>O tráfego passa pelo proxy, a menos que uma região ou uma regra o envie direto.</translation>
    </message>
    <message>
        <source>No regions chosen.</source>
        <translation>Nenhuma região escolhida.</translation>
    </message>
    <message>
        <source>Go direct: %1</source>
        <translation>Direto: %1</translation>
    </message>
    <message>
        <source>Go through the tunnel: %1</source>
        <translation>Pelo túnel: %1</translation>
    </message>
    <message>
        <source>Go through the proxy: %1</source>
        <translation>Pelo proxy: %1</translation>
    </message>
    <message>
        <source>GFWList → Tunnel</source>
        <translation>GFWList → Túnel</translation>
    </message>
    <message>
        <source>GFWList → Proxy</source>
        <translation>GFWList → Proxy</translation>
    </message>
    <message>
        <source>Sites on the GFWList always go through the tunnel.</source>
        <translation>Sites da GFWList sempre passam pelo túnel.</translation>
    </message>
    <message>
        <source>Sites on the GFWList always go through the proxy.</source>
        <translation>Sites da GFWList sempre passam pelo proxy.</translation>
    </message>
    <message>
        <source>Your own domain and address lists.</source>
        <translation>Suas próprias listas de domínios e endereços.</translation>
    </message>
    <message>
        <source>Your own domain and address lists. Rules held: %1.</source>
        <translation>Suas próprias listas de domínios e endereços. Regras salvas: %1.</translation>
    </message>
</context>
<context>
    <name>TovraAppShell</name>
    <message>
        <source>Could not sign in</source>
        <translation>Não foi possível entrar</translation>
    </message>
    <message>
        <source>Could not sign out</source>
        <translation>Não foi possível sair da conta</translation>
    </message>
    <message>
        <source>Could not load account</source>
        <translation>Não foi possível carregar a conta</translation>
    </message>
    <message>
        <source>Could not open renewal page</source>
        <translation>Não foi possível abrir a página de renovação</translation>
    </message>
    <message>
        <source>Refreshing locations...</source>
        <translation>Atualizando localizações...</translation>
    </message>
    <message>
        <source>A locations update is already in progress</source>
        <translation>Já há uma atualização de localizações em andamento</translation>
    </message>
    <message>
        <source>Could not update favorite</source>
        <translation>Não foi possível atualizar o favorito</translation>
    </message>
    <message>
        <source>Could not refresh locations</source>
        <translation>Não foi possível atualizar as localizações</translation>
    </message>
    <message>
        <source>Could not refresh location groups</source>
        <translation>Não foi possível atualizar os grupos de localizações</translation>
    </message>
    <message>
        <source>Locations updated</source>
        <translation>Localizações atualizadas</translation>
    </message>
    <message>
        <source>Could not connect to this location</source>
        <translation>Não foi possível conectar a esta localização</translation>
    </message>
    <message>
        <source>Could not connect</source>
        <translation>Não foi possível conectar</translation>
    </message>
    <message>
        <source>Could not disconnect</source>
        <translation>Não foi possível desconectar</translation>
    </message>
    <message>
        <source>Could not update language</source>
        <translation>Não foi possível alterar o idioma</translation>
    </message>
    <message>
        <source>Restarting Tovra to apply the interface language.</source>
        <translation>Reiniciando o Tovra para aplicar o idioma da interface.</translation>
    </message>
    <message>
        <source>Could not restart Tovra. Please restart the app manually.</source>
        <translation>Não foi possível reiniciar o Tovra. Reinicie o aplicativo manualmente.</translation>
    </message>
    <message>
        <source>Could not switch mode</source>
        <translation>Não foi possível mudar de modo</translation>
    </message>
    <message>
        <source>Could not update local network</source>
        <translation>Não foi possível atualizar a rede local</translation>
    </message>
    <message>
        <source>Could not update system proxy</source>
        <translation>Não foi possível atualizar o proxy do sistema</translation>
    </message>
    <message>
        <source>Please wait for the current operation to finish</source>
        <translation>Aguarde o término da operação atual</translation>
    </message>
    <message>
        <source>Pick a VPN mode to turn on Kill Switch</source>
        <translation>Escolha um modo VPN para ativar o Kill Switch</translation>
    </message>
    <message>
        <source>Could not update kill switch</source>
        <translation>Não foi possível atualizar o Kill Switch</translation>
    </message>
    <message>
        <source>Custom split rules updated, but rules could not be refreshed</source>
        <translation>Regras de divisão personalizadas atualizadas, mas não foi possível recarregá-las</translation>
    </message>
    <message>
        <source>Could not load split rules</source>
        <translation>Não foi possível carregar as regras de divisão</translation>
    </message>
    <message>
        <source>Could not import split rules</source>
        <translation>Não foi possível importar as regras de divisão</translation>
    </message>
    <message numerus="yes">
        <source>Custom split rules updated (%n rule(s))</source>
        <translation>
            <numerusform>Regras de divisão personalizadas atualizadas (%n regra)</numerusform>
            <numerusform>Regras de divisão personalizadas atualizadas (%n regras)</numerusform>
        </translation>
    </message>
    <message>
        <source>Could not load config paths</source>
        <translation>Não foi possível carregar os caminhos de configuração</translation>
    </message>
    <message>
        <source>Could not update API URL</source>
        <translation>Não foi possível atualizar a URL da API</translation>
    </message>
    <message>
        <source>API URL reset to default</source>
        <translation>URL da API restaurada para o padrão</translation>
    </message>
    <message>
        <source>API URL validated and saved</source>
        <translation>URL da API validada e salva</translation>
    </message>
    <message>
        <source>API URL saved but not validated</source>
        <translation>URL da API salva, mas não validada</translation>
    </message>
    <message>
        <source>Could not update auto connect</source>
        <translation>Não foi possível atualizar a conexão automática</translation>
    </message>
    <message>
        <source>Could not update proxy listen address</source>
        <translation>Não foi possível atualizar o endereço de escuta do proxy</translation>
    </message>
    <message>
        <source>Proxy listen address saved for reconnect</source>
        <translation>Endereço de escuta do proxy salvo para a próxima conexão</translation>
    </message>
    <message>
        <source>Proxy listen address updated</source>
        <translation>Endereço de escuta do proxy atualizado</translation>
    </message>
    <message>
        <source>Could not update split DNS</source>
        <translation>Não foi possível atualizar o DNS dividido</translation>
    </message>
    <message>
        <source>Split DNS updated</source>
        <translation>DNS dividido atualizado</translation>
    </message>
    <message>
        <source>Repair failed</source>
        <translation>Falha no reparo</translation>
    </message>
    <message>
        <source>Repair completed</source>
        <translation>Reparo concluído</translation>
    </message>
    <message>
        <source>Checking Tovra service compatibility...</source>
        <translation>Verificando a compatibilidade do serviço Tovra...</translation>
    </message>
    <message>
        <source>Tovra GUI and daemon are incompatible. Update Tovra before continuing.</source>
        <translation>A interface do Tovra e o serviço são incompatíveis. Atualize o Tovra antes de continuar.</translation>
    </message>
    <message>
        <source>Could not load version</source>
        <translation>Não foi possível carregar a versão</translation>
    </message>
    <message>
        <source>GUI version is unavailable</source>
        <translation>A versão da interface não está disponível</translation>
    </message>
    <message>
        <source>Could not check for updates</source>
        <translation>Não foi possível verificar se há atualizações</translation>
    </message>
    <message>
        <source>Tovra is up to date</source>
        <translation>O Tovra está atualizado</translation>
    </message>
    <message>
        <source>A required Tovra update is being checked before connecting.</source>
        <translation>Uma atualização obrigatória do Tovra está sendo verificada antes de conectar.</translation>
    </message>
    <message>
        <source>Finishing the latest update check before starting the download...</source>
        <translation>Concluindo a última verificação de atualizações antes de iniciar o download...</translation>
    </message>
    <message>
        <source>Update information is unavailable. Check for updates again.</source>
        <translation>As informações da atualização não estão disponíveis. Verifique se há atualizações novamente.</translation>
    </message>
    <message>
        <source>Canceling...</source>
        <translation>Cancelando...</translation>
    </message>
    <message>
        <source>Could not confirm that the download started. Checking its status...</source>
        <translation>Não foi possível confirmar que o download começou. Verificando o status...</translation>
    </message>
    <message>
        <source>Could not start the update download</source>
        <translation>Não foi possível iniciar o download da atualização</translation>
    </message>
    <message>
        <source>Could not confirm cancellation. Retrying...</source>
        <translation>Não foi possível confirmar o cancelamento. Tentando novamente...</translation>
    </message>
    <message>
        <source>Could not read download progress. Retrying...</source>
        <translation>Não foi possível ler o progresso do download. Tentando novamente...</translation>
    </message>
    <message>
        <source>The download completed before it could be canceled. The installer was not opened.</source>
        <translation>O download terminou antes que pudesse ser cancelado. O instalador não foi aberto.</translation>
    </message>
    <message>
        <source>The update was downloaded, but the installer could not be opened.</source>
        <translation>A atualização foi baixada, mas não foi possível abrir o instalador.</translation>
    </message>
    <message>
        <source>The download belongs to a different update release. Check for updates again.</source>
        <translation>O download pertence a outra versão da atualização. Verifique se há atualizações novamente.</translation>
    </message>
    <message>
        <source>Could not load kill switch</source>
        <translation>Não foi possível carregar o Kill Switch</translation>
    </message>
    <message>
        <source>Could not load API URL</source>
        <translation>Não foi possível carregar a URL da API</translation>
    </message>
    <message>
        <source>Could not load split DNS</source>
        <translation>Não foi possível carregar o DNS dividido</translation>
    </message>
    <message>
        <source>Could not reach the Tovra service</source>
        <translation>Não foi possível acessar o serviço Tovra</translation>
    </message>
    <message>
        <source>Could not load languages</source>
        <translation>Não foi possível carregar os idiomas</translation>
    </message>
    <message>
        <source>Checking for updates...</source>
        <translation>Verificando atualizações...</translation>
    </message>
    <message>
        <source>Tovra %1 is available</source>
        <translation>O Tovra %1 está disponível</translation>
    </message>
    <message>
        <source>A required Tovra update must be installed before connecting.</source>
        <translation>Uma atualização obrigatória do Tovra precisa ser instalada antes de conectar.</translation>
    </message>
    <message>
        <source>The Tovra service is not available</source>
        <translation>O serviço Tovra não está disponível</translation>
    </message>
    <message>
        <source>The Tovra service did not answer</source>
        <translation>O serviço Tovra não respondeu</translation>
    </message>
    <message>
        <source>A required Tovra update must be installed before connecting</source>
        <translation>É preciso instalar uma atualização obrigatória do Tovra antes de conectar</translation>
    </message>
    <message>
        <source>Another connection request replaced this one</source>
        <translation>Outra solicitação de conexão substituiu esta</translation>
    </message>
</context>
<context>
    <name>TovraRegionPickerDialog</name>
    <message>
        <source>Save</source>
        <extracomment>Button</extracomment>
        <translation>Salvar</translation>
    </message>
    <message>
        <source>Choose regions</source>
        <translation>Escolher regiões</translation>
    </message>
    <message>
        <source>Search countries</source>
        <translation>Pesquisar países</translation>
    </message>
    <message>
        <source>Countries</source>
        <translation>Países</translation>
    </message>
    <message>
        <source>Cancel</source>
        <extracomment>Button</extracomment>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Traffic to the regions you check goes direct, outside the tunnel. Everything else goes through the tunnel.</source>
        <translation>O tráfego para as regiões marcadas vai direto, fora do túnel. Todo o resto passa pelo túnel.</translation>
    </message>
    <message>
        <source>Traffic to the regions you check goes direct, not through the proxy. Everything else goes through the proxy.</source>
        <translation>O tráfego para as regiões marcadas vai direto, sem passar pelo proxy. Todo o resto passa pelo proxy.</translation>
    </message>
    <message>
        <source>Traffic to the regions you check goes through the tunnel. Everything else goes direct.</source>
        <translation>O tráfego para as regiões marcadas passa pelo túnel. Todo o resto vai direto.</translation>
    </message>
    <message>
        <source>Traffic to the regions you check goes through the proxy. Everything else goes direct.</source>
        <translation>O tráfego para as regiões marcadas passa pelo proxy. Todo o resto vai direto.</translation>
    </message>
    <message>
        <source>Checked: %1</source>
        <translation>Marcadas: %1</translation>
    </message>
    <message>
        <source>No country matches “%1”.</source>
        <translation>Nenhum país corresponde a “%1”.</translation>
    </message>
</context>
<context>
    <name>TovraSplitRulesEditorDialog</name>
    <message>
        <source>Rule list</source>
        <translation>Lista de regras</translation>
    </message>
    <message>
        <source>Import</source>
        <extracomment>Button that replaces the chosen rule list with the lines typed</extracomment>
        <translation>Importar</translation>
    </message>
    <message>
        <source>Custom split rules</source>
        <translation>Regras de divisão personalizadas</translation>
    </message>
    <message>
        <source>One domain, IP address or CIDR range per line, such as example.org, 203.0.113.7 or 10.0.0.0/8. Lines starting with # are comments.</source>
        <translation>Um domínio, endereço IP ou intervalo CIDR por linha, como example.org, 203.0.113.7 ou 10.0.0.0/8. Linhas que começam com # são comentários.</translation>
    </message>
    <message>
        <source>Rules</source>
        <translation>Regras</translation>
    </message>
    <message>
        <source>example.org
*.example.net
203.0.113.0/24</source>
        <translation>example.org
*.example.net
203.0.113.0/24</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Button</extracomment>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>Replace the chosen list with these rules</source>
        <translation>Substituir a lista escolhida por estas regras</translation>
    </message>
    <message>
        <source>Direct</source>
        <extracomment>Name of the rule list whose sites and addresses go straight to the internet</extracomment>
        <translation>Direto</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>Block</source>
        <translation>Bloquear</translation>
    </message>
    <message>
        <source>Sites and addresses that always go direct</source>
        <translation>Sites e endereços que sempre vão direto</translation>
    </message>
    <message>
        <source>Sites and addresses that always go through Tovra</source>
        <translation>Sites e endereços que sempre passam pelo Tovra</translation>
    </message>
    <message>
        <source>Sites and addresses that are blocked</source>
        <translation>Sites e endereços bloqueados</translation>
    </message>
    <message>
        <source>Loading rules…</source>
        <translation>Carregando regras…</translation>
    </message>
    <message>
        <source>The Tovra service reports no rule lists.</source>
        <translation>O serviço Tovra não informa nenhuma lista de regras.</translation>
    </message>
    <message>
        <source>Rules are not loaded yet.</source>
        <translation>As regras ainda não foram carregadas.</translation>
    </message>
    <message>
        <source>Rules: %1 · Lines: %2</source>
        <translation>Regras: %1 · Linhas: %2</translation>
    </message>
    <message>
        <source>not imported</source>
        <translation>não importado</translation>
    </message>
    <message>
        <source>importing…</source>
        <translation>importando…</translation>
    </message>
    <message>
        <source>Nothing was imported. Fix these lines first:</source>
        <translation>Nada foi importado. Corrija estas linhas primeiro:</translation>
    </message>
    <message>
        <source>Line %1: “%2” is not a domain, IP address or CIDR range.</source>
        <translation>Linha %1: “%2” não é um domínio, endereço IP ou intervalo CIDR.</translation>
    </message>
    <message>
        <source>… Bad lines in all: %1.</source>
        <translation>… Total de linhas inválidas: %1.</translation>
    </message>
</context>
<context>
    <name>TrayMenuText</name>
    <message>
        <source>Tovra: connecting...</source>
        <translation>Tovra: conectando...</translation>
    </message>
    <message>
        <source>Tovra: connecting %1...</source>
        <translation>Tovra: conectando a %1...</translation>
    </message>
    <message>
        <source>[ %1 ]</source>
        <translation>[ %1 ]</translation>
    </message>
    <message>
        <source>Error: %1</source>
        <translation>Erro: %1</translation>
    </message>
    <message>
        <source>Tovra: updating TovraVPN split...</source>
        <extracomment>Changing the default route of the TovraVPN Split mode; name the mode as the Mode page does</extracomment>
        <translation>Tovra: atualizando o TovraVPN dividido...</translation>
    </message>
    <message>
        <source>Tovra: updating TovraVPN regions...</source>
        <translation>Tovra: atualizando as regiões do TovraVPN...</translation>
    </message>
    <message>
        <source>Tovra: updating TovraVPN GFWList...</source>
        <translation>Tovra: atualizando a GFWList do TovraVPN...</translation>
    </message>
    <message>
        <source>Tovra: updating TovraVPN custom rules...</source>
        <translation>Tovra: atualizando as regras personalizadas do TovraVPN...</translation>
    </message>
    <message>
        <source>Tovra: updating Tovra Proxy Split...</source>
        <translation>Tovra: atualizando o Tovra Proxy dividido...</translation>
    </message>
    <message>
        <source>Tovra: updating Tovra Proxy regions...</source>
        <translation>Tovra: atualizando as regiões do Tovra Proxy...</translation>
    </message>
    <message>
        <source>Tovra: updating Tovra Proxy GFWList...</source>
        <translation>Tovra: atualizando a GFWList do Tovra Proxy...</translation>
    </message>
    <message>
        <source>operation failed</source>
        <extracomment>Follows &quot;Error: &quot; when a request to the service failed without a reason. Word it as a user would understand it: &quot;could not complete the action&quot;</extracomment>
        <translation>não foi possível concluir a ação</translation>
    </message>
    <message>
        <source>log directory</source>
        <translation>a pasta de registros</translation>
    </message>
    <message>
        <source>missing %1</source>
        <translation>falta %1</translation>
    </message>
    <message>
        <source>%1 does not exist: %2</source>
        <translation>não existe %1: %2</translation>
    </message>
    <message>
        <source>could not open %1: %2</source>
        <translation>não foi possível abrir %1: %2</translation>
    </message>
    <message>
        <source>Current: loading...</source>
        <translation>Atual: carregando...</translation>
    </message>
    <message>
        <source>Refresh Nodes</source>
        <translation>Atualizar localizações</translation>
    </message>
    <message>
        <source>Loading nodes...</source>
        <translation>Carregando localizações...</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>Automático</translation>
    </message>
    <message>
        <source>WireGuard</source>
        <translation>WireGuard</translation>
    </message>
    <message>
        <source>Mode: TovraVPN</source>
        <translation>Modo: TovraVPN</translation>
    </message>
    <message>
        <source>Global</source>
        <translation>Global</translation>
    </message>
    <message>
        <source>Split</source>
        <translation>Dividido</translation>
    </message>
    <message>
        <source>Split Options</source>
        <translation>Opções de divisão</translation>
    </message>
    <message>
        <source>Default: Tunnel</source>
        <translation>Rota padrão: túnel</translation>
    </message>
    <message>
        <source>Default: Direct</source>
        <translation>Rota padrão: direta</translation>
    </message>
    <message>
        <source>Regions</source>
        <translation>Regiões</translation>
    </message>
    <message>
        <source>GFWList -&gt; Tunnel</source>
        <translation>GFWList -&gt; Túnel</translation>
    </message>
    <message>
        <source>Custom Split Rules</source>
        <translation>Regras de divisão personalizadas</translation>
    </message>
    <message>
        <source>Mode: Tovra Proxy</source>
        <translation>Modo: Tovra Proxy</translation>
    </message>
    <message>
        <source>Default: Proxy</source>
        <translation>Rota padrão: proxy</translation>
    </message>
    <message>
        <source>GFWList -&gt; Proxy</source>
        <translation>GFWList -&gt; Proxy</translation>
    </message>
    <message>
        <source>Tovra: starting...</source>
        <translation>Tovra: iniciando...</translation>
    </message>
    <message>
        <source>Daemon: checking...</source>
        <translation>Serviço: verificando...</translation>
    </message>
    <message>
        <source>Open Tovra...</source>
        <translation>Abrir o Tovra...</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Conectar</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>Desconectar</translation>
    </message>
    <message>
        <source>Node / Location</source>
        <translation>Localização</translation>
    </message>
    <message>
        <source>System Proxy</source>
        <translation>Proxy do sistema</translation>
    </message>
    <message>
        <source>Off</source>
        <extracomment>System proxy menu option and value: the desktop proxy settings are left alone</extracomment>
        <translation>Desativado</translation>
    </message>
    <message>
        <source>On</source>
        <extracomment>System proxy menu option and value: the desktop proxy settings point at Tovra</extracomment>
        <translation>Ativado</translation>
    </message>
    <message>
        <source>Lock</source>
        <extracomment>System proxy menu option and value, a state rather than an action: the desktop proxy settings point at Tovra and other programs cannot change them</extracomment>
        <translation>Travado</translation>
    </message>
    <message>
        <source>Local Network</source>
        <translation>Rede local</translation>
    </message>
    <message>
        <source>LAN Access</source>
        <translation>Acesso à rede local</translation>
    </message>
    <message>
        <source>Direct</source>
        <extracomment>Local network menu option and value: devices nearby are reached outside the tunnel. Also the route in &quot;Regions use %1: %2&quot;</extracomment>
        <translation>Direta</translation>
    </message>
    <message>
        <source>Protected</source>
        <extracomment>Local network menu option and value: local traffic goes through the tunnel like the rest</extracomment>
        <translation>Protegida</translation>
    </message>
    <message>
        <source>Kill Switch</source>
        <translation>Kill Switch</translation>
    </message>
    <message>
        <source>Refresh Status</source>
        <translation>Atualizar status</translation>
    </message>
    <message>
        <source>Open Logs</source>
        <translation>Abrir registros</translation>
    </message>
    <message>
        <source>Account: checking...</source>
        <translation>Conta: verificando...</translation>
    </message>
    <message>
        <source>Logout</source>
        <translation>Sair da conta</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Sair</translation>
    </message>
    <message>
        <source>Tovra: daemon unavailable</source>
        <translation>Tovra: serviço indisponível</translation>
    </message>
    <message>
        <source>daemon unavailable</source>
        <translation>serviço indisponível</translation>
    </message>
    <message>
        <source>Account: unavailable</source>
        <translation>Conta: indisponível</translation>
    </message>
    <message>
        <source>Tovra - daemon unavailable</source>
        <translation>Tovra - serviço indisponível</translation>
    </message>
    <message>
        <source>Tovra: switching to auto...</source>
        <translation>Tovra: mudando para automático...</translation>
    </message>
    <message>
        <source>Tovra: switching to WireGuard...</source>
        <translation>Tovra: mudando para WireGuard...</translation>
    </message>
    <message>
        <source>Tovra: switching to TovraVPN...</source>
        <translation>Tovra: mudando para TovraVPN...</translation>
    </message>
    <message>
        <source>Tovra: switching TovraVPN split...</source>
        <extracomment>Switching to the TovraVPN Split mode; name the mode as the Mode page does</extracomment>
        <translation>Tovra: mudando para TovraVPN dividido...</translation>
    </message>
    <message>
        <source>Tovra: switching to Tovra Proxy...</source>
        <translation>Tovra: mudando para Tovra Proxy...</translation>
    </message>
    <message>
        <source>Tovra: switching to Tovra Proxy Split...</source>
        <translation>Tovra: mudando para Tovra Proxy dividido...</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>System Proxy: %1</source>
        <translation>Proxy do sistema: %1</translation>
    </message>
    <message>
        <source>Local Network: %1</source>
        <translation>Rede local: %1</translation>
    </message>
    <message>
        <source>Tunnel</source>
        <translation>Túnel</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>Regions use %1: %2</source>
        <translation>Regiões (%1): %2</translation>
    </message>
    <message>
        <source>Could not refresh nodes</source>
        <translation>Não foi possível atualizar as localizações</translation>
    </message>
    <message>
        <source>Could not load nodes</source>
        <translation>Não foi possível carregar as localizações</translation>
    </message>
    <message>
        <source>Could not refresh node groups</source>
        <translation>Não foi possível atualizar os grupos de localizações</translation>
    </message>
    <message>
        <source>Could not load node groups</source>
        <translation>Não foi possível carregar os grupos de localizações</translation>
    </message>
    <message>
        <source>Refreshing nodes...</source>
        <translation>Atualizando localizações...</translation>
    </message>
    <message>
        <source>Nodes not loaded</source>
        <translation>Localizações não carregadas</translation>
    </message>
    <message>
        <source>No cached nodes</source>
        <translation>Nenhuma localização em cache</translation>
    </message>
    <message>
        <source>No nodes</source>
        <translation>Nenhuma localização</translation>
    </message>
    <message>
        <source>Current: %1</source>
        <translation>Atual: %1</translation>
    </message>
    <message>
        <source>none</source>
        <translation>nenhuma</translation>
    </message>
    <message>
        <source>Refresh Nodes (%1s)</source>
        <translation>Atualizar localizações (%1 s)</translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <translation>%1 · %2</translation>
    </message>
    <message>
        <source>Location: %1</source>
        <translation>Localização: %1</translation>
    </message>
    <message>
        <source>Location: %1 · %2</source>
        <translation>Localização: %1 · %2</translation>
    </message>
    <message>
        <source>Current: %1 (stale)</source>
        <translation>Atual: %1 (desatualizada)</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Grupo</translation>
    </message>
    <message>
        <source>less than 1m</source>
        <translation>menos de 1 min</translation>
    </message>
    <message>
        <source>%1m</source>
        <translation>%1 min</translation>
    </message>
    <message>
        <source>%1h</source>
        <translation>%1 h</translation>
    </message>
    <message>
        <source>%1h %2m</source>
        <translation>%1 h %2 min</translation>
    </message>
    <message>
        <source>%1d</source>
        <translation>%1 d</translation>
    </message>
    <message>
        <source>%1d %2h</source>
        <translation>%1 d %2 h</translation>
    </message>
    <message>
        <source>Tovra: disconnecting...</source>
        <translation>Tovra: desconectando...</translation>
    </message>
    <message>
        <source>Tovra: logging out...</source>
        <translation>Tovra: saindo da conta...</translation>
    </message>
    <message>
        <source>Tovra: updating system proxy...</source>
        <translation>Tovra: atualizando o proxy do sistema...</translation>
    </message>
    <message>
        <source>Tovra: updating local network routing...</source>
        <translation>Tovra: atualizando o roteamento da rede local...</translation>
    </message>
    <message>
        <source>Tovra: enabling kill switch...</source>
        <translation>Tovra: ativando o Kill Switch...</translation>
    </message>
    <message>
        <source>Tovra: disabling kill switch...</source>
        <translation>Tovra: desativando o Kill Switch...</translation>
    </message>
    <message>
        <source>Tovra: connect failed</source>
        <translation>Tovra: falha ao conectar</translation>
    </message>
    <message>
        <source>Tovra: disconnect failed</source>
        <translation>Tovra: falha ao desconectar</translation>
    </message>
    <message>
        <source>Logged out</source>
        <translation>Sessão encerrada</translation>
    </message>
    <message>
        <source>account operation failed</source>
        <extracomment>Follows &quot;Error: &quot; when signing out failed and the service gave no reason. Word it as a user would understand it: &quot;could not complete the account action&quot;</extracomment>
        <translation>não foi possível concluir a ação da conta</translation>
    </message>
    <message>
        <source>mode operation failed</source>
        <extracomment>Follows &quot;Error: &quot; when changing the mode failed and the service gave no reason. Word it as a user would understand it: &quot;could not change the mode&quot;</extracomment>
        <translation>não foi possível mudar o modo</translation>
    </message>
    <message>
        <source>Mode updated</source>
        <translation>Modo atualizado</translation>
    </message>
    <message>
        <source>System proxy set to %1</source>
        <translation>Proxy do sistema: %1</translation>
    </message>
    <message>
        <source>Updated</source>
        <translation>Atualizado</translation>
    </message>
    <message>
        <source>Kill switch enabled</source>
        <translation>Kill Switch ativado</translation>
    </message>
    <message>
        <source>Kill switch disabled</source>
        <translation>Kill Switch desativado</translation>
    </message>
    <message>
        <source>kill-switch operation failed</source>
        <extracomment>Follows &quot;Error: &quot; when turning the kill switch on or off failed and the service gave no reason. Word it as a user would understand it: &quot;could not change the kill switch&quot;</extracomment>
        <translation>não foi possível alterar o Kill Switch</translation>
    </message>
    <message>
        <source>connected</source>
        <extracomment>Tunnel state after &quot;Tovra: &quot;: the VPN is connected (not connecting)</extracomment>
        <translation>conectado</translation>
    </message>
    <message>
        <source>disconnected</source>
        <translation>desconectado</translation>
    </message>
    <message>
        <source>connecting</source>
        <translation>conectando</translation>
    </message>
    <message>
        <source>disconnecting</source>
        <translation>desconectando</translation>
    </message>
    <message>
        <source>ready</source>
        <translation>pronto</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>desconhecido</translation>
    </message>
    <message>
        <source>Tovra: %1</source>
        <translation>Tovra: %1</translation>
    </message>
    <message>
        <source>running</source>
        <translation>em execução</translation>
    </message>
    <message>
        <source>Daemon: %1</source>
        <translation>Serviço: %1</translation>
    </message>
    <message>
        <source>Daemon: %1 (%2)</source>
        <translation>Serviço: %1 (%2)</translation>
    </message>
    <message>
        <source>Account: cached</source>
        <translation>Conta: em cache</translation>
    </message>
    <message>
        <source>Account: Login Required</source>
        <translation>Conta: é preciso entrar</translation>
    </message>
    <message>
        <source>Account: %1</source>
        <translation>Conta: %1</translation>
    </message>
    <message>
        <source>Account: logged in</source>
        <translation>Conta: sessão iniciada</translation>
    </message>
    <message>
        <source>Kill Switch: %1</source>
        <translation>Kill Switch: %1</translation>
    </message>
    <message>
        <source>off</source>
        <comment>system proxy value</comment>
        <translation>desativado</translation>
    </message>
    <message>
        <source>on</source>
        <comment>system proxy value</comment>
        <translation>ativado</translation>
    </message>
    <message>
        <source>lock</source>
        <comment>system proxy value</comment>
        <translation>travado</translation>
    </message>
    <message>
        <source>%1 · Locked: needs the %2 plan</source>
        <extracomment>A node menu entry the plan does not include: the node, then the plan it needs</extracomment>
        <translation>%1 · Bloqueada: requer o plano %2</translation>
    </message>
</context>
<context>
    <name>UpdateDialog</name>
    <message>
        <source>Could not read the update download status.</source>
        <translation>Não foi possível ler o status do download da atualização.</translation>
    </message>
    <message>
        <source>Download canceled.</source>
        <translation>Download cancelado.</translation>
    </message>
    <message>
        <source>Could not download the update.</source>
        <translation>Não foi possível baixar a atualização.</translation>
    </message>
    <message>
        <source>Download complete. Opening the installer...</source>
        <translation>Download concluído. Abrindo o instalador...</translation>
    </message>
    <message>
        <source>The download link is unavailable.</source>
        <translation>O link de download não está disponível.</translation>
    </message>
    <message>
        <source>Could not open the update download link.</source>
        <translation>Não foi possível abrir o link de download da atualização.</translation>
    </message>
    <message>
        <source>The download link opened in your browser. Tovra will not run the installer automatically.</source>
        <translation>O link de download foi aberto no navegador. O Tovra não executará o instalador automaticamente.</translation>
    </message>
    <message>
        <source>Tovra Update</source>
        <translation>Atualização do Tovra</translation>
    </message>
    <message>
        <source>Tovra must be updated before you can connect. Download the installer or exit Tovra.</source>
        <translation>É preciso atualizar o Tovra antes de conectar. Baixe o instalador ou saia do Tovra.</translation>
    </message>
    <message>
        <source>What&apos;s New</source>
        <translation>Novidades</translation>
    </message>
    <message>
        <source>Download progress</source>
        <translation>Progresso do download</translation>
    </message>
    <message>
        <source>Hide this update</source>
        <extracomment>Button (shown as a link) that stops offering this update</extracomment>
        <translation>Ocultar esta atualização</translation>
    </message>
    <message>
        <source>Not Now</source>
        <extracomment>Button that closes the dialog and keeps the update for later</extracomment>
        <translation>Agora não</translation>
    </message>
    <message>
        <source>Exit Tovra</source>
        <extracomment>Button that quits Tovra when the update is required</extracomment>
        <translation>Sair do Tovra</translation>
    </message>
    <message>
        <source>Exit Tovra without updating</source>
        <translation>Sair do Tovra sem atualizar</translation>
    </message>
    <message>
        <source>Open Download Link</source>
        <extracomment>Button that opens the installer download page in the browser</extracomment>
        <translation>Abrir link de download</translation>
    </message>
    <message>
        <source>Open the Tovra update download link</source>
        <translation>Abrir o link de download da atualização do Tovra</translation>
    </message>
    <message>
        <source>A required update is available</source>
        <translation>Há uma atualização obrigatória disponível</translation>
    </message>
    <message>
        <source>A new Tovra update is available</source>
        <translation>Há uma nova atualização do Tovra disponível</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Desconhecida</translation>
    </message>
    <message>
        <source>Latest</source>
        <translation>Mais recente</translation>
    </message>
    <message>
        <source>Current version: %1
Available version: %2</source>
        <translation>Versão atual: %1
Versão disponível: %2</translation>
    </message>
    <message>
        <source>Release notes are unavailable.</source>
        <translation>As notas da versão não estão disponíveis.</translation>
    </message>
    <message>
        <source>Downloading %1 of %2</source>
        <translation>Baixando %1 de %2</translation>
    </message>
    <message>
        <source>Downloading update...</source>
        <translation>Baixando a atualização...</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 MB</translation>
    </message>
    <message>
        <source>Preparing the download...</source>
        <translation>Preparando o download...</translation>
    </message>
    <message>
        <source>Verifying the download...</source>
        <translation>Verificando o download...</translation>
    </message>
    <message>
        <source>Canceling the download...</source>
        <translation>Cancelando o download...</translation>
    </message>
    <message>
        <source>Download in Background</source>
        <extracomment>Button that hides the dialog while the installer downloads</extracomment>
        <translation>Baixar em segundo plano</translation>
    </message>
    <message>
        <source>Download the latest installer without interrupting your current session.</source>
        <translation>Baixe o instalador mais recente sem interromper sua sessão atual.</translation>
    </message>
    <message>
        <source>Hide this window while the update downloads</source>
        <translation>Ocultar esta janela enquanto a atualização é baixada</translation>
    </message>
    <message>
        <source>Canceling...</source>
        <extracomment>Button while the download is being cancelled</extracomment>
        <translation>Cancelando...</translation>
    </message>
    <message>
        <source>Cancel the update download</source>
        <translation>Cancelar o download da atualização</translation>
    </message>
    <message>
        <source>Cancel Download</source>
        <extracomment>Button</extracomment>
        <translation>Cancelar download</translation>
    </message>
    <message>
        <source>Opening Installer...</source>
        <extracomment>Button while the downloaded installer opens</extracomment>
        <translation>Abrindo o instalador...</translation>
    </message>
    <message>
        <source>Retry Download</source>
        <extracomment>Button</extracomment>
        <translation>Tentar baixar novamente</translation>
    </message>
    <message>
        <source>Retry the update download</source>
        <translation>Tentar baixar a atualização novamente</translation>
    </message>
    <message>
        <source>Download Update</source>
        <extracomment>Button that downloads and opens the installer</extracomment>
        <translation>Baixar atualização</translation>
    </message>
    <message>
        <source>Download and install the Tovra update</source>
        <translation>Baixar e instalar a atualização do Tovra</translation>
    </message>
    <message>
        <source>Retrying the download...</source>
        <translation>Tentando baixar novamente...</translation>
    </message>
</context>
<context>
    <name>UpdatesSection</name>
    <message>
        <source>Updates</source>
        <translation>Atualizações</translation>
    </message>
    <message>
        <source>Check for updates</source>
        <extracomment>Button</extracomment>
        <translation>Verificar atualizações</translation>
    </message>
    <message>
        <source>Tovra for Linux</source>
        <translation>Tovra para Linux</translation>
    </message>
    <message>
        <source>The version of this app.</source>
        <translation>A versão deste aplicativo.</translation>
    </message>
    <message>
        <source>Ask the Tovra service for a newer version.</source>
        <translation>Pergunta ao serviço Tovra se há uma versão mais recente.</translation>
    </message>
    <message>
        <source>%1 (build %2)</source>
        <translation>%1 (build %2)</translation>
    </message>
</context>
<context>
    <name>VpnKillSwitchRow</name>
    <message>
        <source>Kill Switch</source>
        <translation>Kill Switch</translation>
    </message>
</context>
<context>
    <name>VpnPage</name>
    <message>
        <source>Connect</source>
        <extracomment>Button that connects the VPN</extracomment>
        <translation>Conectar</translation>
    </message>
    <message>
        <source>Sign In</source>
        <extracomment>Button that opens the account page to sign in</extracomment>
        <translation>Entrar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <extracomment>Button that stops a connection attempt</extracomment>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <extracomment>Button that disconnects the VPN</extracomment>
        <translation>Desconectar</translation>
    </message>
    <message>
        <source>Disconnecting…</source>
        <extracomment>Button while the VPN disconnects</extracomment>
        <translation>Desconectando…</translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <translation>%1 · %2</translation>
    </message>
    <message>
        <source>Service unavailable</source>
        <translation>Serviço indisponível</translation>
    </message>
    <message>
        <source>Waiting for the Tovra service to answer.</source>
        <translation>Aguardando a resposta do serviço Tovra.</translation>
    </message>
    <message>
        <source>Signed out</source>
        <translation>Sessão encerrada</translation>
    </message>
    <message>
        <source>Sign in to your Tovra account to connect.</source>
        <translation>Entre na sua conta Tovra para se conectar.</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Localização</translation>
    </message>
    <message>
        <source>Last location</source>
        <translation>Última localização</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Conectado</translation>
    </message>
    <message>
        <source>Your traffic goes through the Tovra tunnel.</source>
        <translation>Seu tráfego passa pelo túnel do Tovra.</translation>
    </message>
    <message>
        <source>Connecting…</source>
        <translation>Conectando…</translation>
    </message>
    <message>
        <source>Setting up the tunnel.</source>
        <translation>Estabelecendo o túnel.</translation>
    </message>
    <message>
        <source>Connecting to %1</source>
        <translation>Conectando a %1</translation>
    </message>
    <message>
        <source>Closing the tunnel.</source>
        <translation>Fechando o túnel.</translation>
    </message>
    <message>
        <source>Disconnected</source>
        <translation>Desconectado</translation>
    </message>
    <message>
        <source>Kill Switch blocks traffic until you connect.</source>
        <translation>O Kill Switch bloqueia o tráfego até você se conectar.</translation>
    </message>
    <message>
        <source>Your traffic is not protected.</source>
        <translation>Seu tráfego não está protegido.</translation>
    </message>
    <message>
        <source>Connected to %1</source>
        <translation>Conectado a %1</translation>
    </message>
    <message>
        <source>Connection failed: %1</source>
        <translation>Falha na conexão: %1</translation>
    </message>
</context>
<context>
    <name>VpnRecentLocations</name>
    <message>
        <source>Clear</source>
        <extracomment>Button that empties the list of recent locations</extracomment>
        <translation>Limpar</translation>
    </message>
    <message>
        <source>Locations you connect to appear here.</source>
        <translation>As localizações às quais você se conectar aparecerão aqui.</translation>
    </message>
    <message>
        <source>Recent locations</source>
        <translation>Localizações recentes</translation>
    </message>
    <message>
        <source>Clear recent locations</source>
        <translation>Limpar localizações recentes</translation>
    </message>
    <message>
        <source>Connect to %1</source>
        <translation>Conectar a %1</translation>
    </message>
</context>
<context>
    <name>VpnStatusCard</name>
    <message>
        <source>Connected for %1</source>
        <translation>Conectado há %1</translation>
    </message>
    <message>
        <source>Mode: %1</source>
        <translation>Modo: %1</translation>
    </message>
</context>
<context>
    <name>WindowController</name>
    <message>
        <source>Could not open link</source>
        <translation>Não foi possível abrir o link</translation>
    </message>
    <message>
        <source>Log directory is unavailable</source>
        <translation>A pasta de registros não está disponível</translation>
    </message>
    <message>
        <source>Log directory does not exist: %1</source>
        <translation>A pasta de registros não existe: %1</translation>
    </message>
    <message>
        <source>Could not open log directory: %1</source>
        <translation>Não foi possível abrir a pasta de registros: %1</translation>
    </message>
    <message>
        <source>Account operation failed</source>
        <extracomment>Shown when signing in or out failed without a reason. Word it as a user would understand it: &quot;Could not complete the account action&quot;</extracomment>
        <translation>Não foi possível concluir a ação da conta</translation>
    </message>
</context>
<context>
    <name>WindowShortcuts</name>
    <message>
        <source>Ctrl+1</source>
        <extracomment>Keyboard shortcut, in Qt&apos;s key names: keep it unless the key is awkward to reach</extracomment>
        <translation>Ctrl+1</translation>
    </message>
    <message>
        <source>Show the VPN page</source>
        <translation>Mostrar a página VPN</translation>
    </message>
    <message>
        <source>Ctrl+2</source>
        <translation>Ctrl+2</translation>
    </message>
    <message>
        <source>Show the Locations page</source>
        <translation>Mostrar a página Localizações</translation>
    </message>
    <message>
        <source>Ctrl+3</source>
        <translation>Ctrl+3</translation>
    </message>
    <message>
        <source>Show the Mode page</source>
        <translation>Mostrar a página Modo</translation>
    </message>
    <message>
        <source>Ctrl+4</source>
        <translation>Ctrl+4</translation>
    </message>
    <message>
        <source>Show the Settings page</source>
        <translation>Mostrar a página Configurações</translation>
    </message>
    <message>
        <source>Ctrl+5</source>
        <translation>Ctrl+5</translation>
    </message>
    <message>
        <source>Show the Account page</source>
        <translation>Mostrar a página Conta</translation>
    </message>
    <message>
        <source>Search: the quick connect field on the VPN page, the list on the Locations page</source>
        <translation>Pesquisar: o campo de conexão rápida na página VPN, a lista na página Localizações</translation>
    </message>
    <message>
        <source>Ctrl+R</source>
        <extracomment>Keyboard shortcut, in Qt&apos;s key names: keep it unless the key is awkward to reach</extracomment>
        <translation>Ctrl+R</translation>
    </message>
    <message>
        <source>Refresh locations</source>
        <translation>Atualizar localizações</translation>
    </message>
    <message>
        <source>Close the window; Tovra stays in the tray</source>
        <translation>Fechar a janela; o Tovra continua na bandeja</translation>
    </message>
    <message>
        <source>Ctrl+Q</source>
        <translation>Ctrl+Q</translation>
    </message>
    <message>
        <source>Quit Tovra</source>
        <translation>Sair do Tovra</translation>
    </message>
    <message>
        <source>Close a list, menu or dialog</source>
        <translation>Fechar uma lista, um menu ou uma caixa de diálogo</translation>
    </message>
    <message>
        <source>Show these keyboard shortcuts</source>
        <translation>Mostrar estes atalhos de teclado</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <extracomment>A control&apos;s tool tip: what it does, then its keyboard shortcut</extracomment>
        <translation>%1 (%2)</translation>
    </message>
</context>
</TS>
