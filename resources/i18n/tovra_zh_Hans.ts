<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_Hans">
<context>
    <name>AccountPage</name>
    <message>
        <source>Enter account and password.</source>
        <translation>请输入账号和密码。</translation>
    </message>
    <message>
        <source>Account operation failed</source>
        <extracomment>Shown when signing in or out failed without a reason. Word it as a user would understand it: &quot;Could not complete the account action&quot;</extracomment>
        <translation>无法完成账户操作</translation>
    </message>
</context>
<context>
    <name>AccountSignInCard</name>
    <message>
        <source>Remember this account</source>
        <translation>记住此账号</translation>
    </message>
    <message>
        <source>Sign In</source>
        <extracomment>Button that signs in to the Tovra account</extracomment>
        <translation>登录</translation>
    </message>
    <message>
        <source>Sign in</source>
        <translation>登录</translation>
    </message>
    <message>
        <source>Use your Tovra account to connect and sync available locations.</source>
        <translation>使用 Tovra 账户登录，即可连接并同步可用节点。</translation>
    </message>
    <message>
        <source>Email or user ID</source>
        <translation>邮箱或用户 ID</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>密码</translation>
    </message>
    <message>
        <source>Sign Up</source>
        <extracomment>Button that opens the page to create a Tovra account</extracomment>
        <translation>注册</translation>
    </message>
    <message>
        <source>Forgot password?</source>
        <extracomment>Button (shown as a link) that opens the password reset page</extracomment>
        <translation>忘记密码？</translation>
    </message>
    <message>
        <source>Signing in...</source>
        <extracomment>Button while the sign-in runs</extracomment>
        <translation>正在登录...</translation>
    </message>
</context>
<context>
    <name>AccountSummaryCard</name>
    <message>
        <source>Renew</source>
        <extracomment>Button that opens the page to renew the plan</extracomment>
        <translation>续费</translation>
    </message>
    <message>
        <source>Sign Out</source>
        <extracomment>Button that signs out of the Tovra account</extracomment>
        <translation>退出登录</translation>
    </message>
    <message>
        <source>Signed in</source>
        <translation>已登录</translation>
    </message>
    <message>
        <source>User ID: %1</source>
        <translation>用户 ID：%1</translation>
    </message>
    <message>
        <source>Plan: %1</source>
        <translation>套餐：%1</translation>
    </message>
    <message>
        <source>Days left: %1</source>
        <translation>剩余天数：%1</translation>
    </message>
    <message>
        <source>Max simultaneous devices: %1</source>
        <translation>同时在线设备上限：%1</translation>
    </message>
    <message>
        <source>Signing out...</source>
        <extracomment>Button while the sign-out runs</extracomment>
        <translation>正在退出登录...</translation>
    </message>
    <message>
        <source>Opening…</source>
        <extracomment>Button while the renewal page opens</extracomment>
        <translation>正在打开…</translation>
    </message>
</context>
<context>
    <name>AppSection</name>
    <message>
        <source>App</source>
        <translation>应用</translation>
    </message>
    <message>
        <source>Change…</source>
        <extracomment>Button that opens the language picker</extracomment>
        <translation>更改…</translation>
    </message>
    <message>
        <source>Launch at login</source>
        <translation>登录时启动</translation>
    </message>
    <message>
        <source>Start Tovra in the tray when you sign in to the desktop.</source>
        <translation>登录桌面时在托盘中启动 Tovra。</translation>
    </message>
    <message>
        <source>Show window at launch</source>
        <translation>启动时显示窗口</translation>
    </message>
    <message>
        <source>Open this window when Tovra starts; otherwise only the tray icon appears.</source>
        <translation>Tovra 启动时打开此窗口；否则只显示托盘图标。</translation>
    </message>
    <message>
        <source>Same as desktop</source>
        <translation>跟随桌面</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>浅色</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>深色</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>外观</translation>
    </message>
    <message>
        <source>Light, dark, or following the desktop.</source>
        <translation>浅色、深色或跟随桌面。</translation>
    </message>
    <message>
        <source>Change language</source>
        <translation>更改语言</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>语言</translation>
    </message>
    <message>
        <source>%1, following the desktop</source>
        <translation>%1（跟随桌面）</translation>
    </message>
    <message>
        <source>Could not update login startup</source>
        <translation>无法更新登录时启动设置</translation>
    </message>
    <message>
        <source>Show…</source>
        <extracomment>Button that opens the list of keyboard shortcuts</extracomment>
        <translation>显示…</translation>
    </message>
    <message>
        <source>Show keyboard shortcuts</source>
        <translation>显示键盘快捷键</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>键盘快捷键</translation>
    </message>
    <message>
        <source>Every key that works in this window.</source>
        <translation>此窗口中可用的所有按键。</translation>
    </message>
</context>
<context>
    <name>CatalogTreeModel</name>
    <message>
        <source>Location %1</source>
        <translation>节点 %1</translation>
    </message>
    <message>
        <source>Other locations</source>
        <translation>其他节点</translation>
    </message>
    <message>
        <source>Premium</source>
        <translation>高级</translation>
    </message>
    <message>
        <source>locations: %1</source>
        <translation>节点数：%1</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>latency not measured</source>
        <translation>尚未测量延迟</translation>
    </message>
    <message>
        <source>favourite</source>
        <translation>已收藏</translation>
    </message>
    <message>
        <source>connected</source>
        <extracomment>Said of a location in the list: it is the one the VPN is connected to now (not connecting)</extracomment>
        <translation>已连接</translation>
    </message>
    <message>
        <source>not in your plan</source>
        <translation>不在您的套餐内</translation>
    </message>
    <message>
        <source>Your plan does not include this location. Upgrade to use it.</source>
        <translation>您的套餐不包含此节点。升级后即可使用。</translation>
    </message>
    <message>
        <source>This list may be out of date.</source>
        <translation>此列表可能已过时。</translation>
    </message>
    <message>
        <source>Locked: needs the %1 plan. Upgrade to use it.</source>
        <translation>已锁定：需要 %1 套餐。升级后即可使用。</translation>
    </message>
</context>
<context>
    <name>ConfirmDialog</name>
    <message>
        <source>Cancel</source>
        <extracomment>Button</extracomment>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>ConnectionSection</name>
    <message>
        <source>Connection</source>
        <translation>连接</translation>
    </message>
    <message>
        <source>API URL</source>
        <translation>API 地址</translation>
    </message>
    <message>
        <source>Save</source>
        <extracomment>Button that saves the API URL typed in the field</extracomment>
        <translation>保存</translation>
    </message>
    <message>
        <source>Reset to default</source>
        <extracomment>Button that puts the API URL back to the default address</extracomment>
        <translation>恢复默认</translation>
    </message>
    <message>
        <source>Off</source>
        <extracomment>Auto connect choice: connect to nothing when the service starts</extracomment>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Last location</source>
        <translation>上次的节点</translation>
    </message>
    <message>
        <source>Fastest location</source>
        <translation>最快的节点</translation>
    </message>
    <message>
        <source>Auto connect</source>
        <translation>自动连接</translation>
    </message>
    <message>
        <source>What the Tovra service connects to when it starts.</source>
        <translation>Tovra 服务启动时自动连接的目标。</translation>
    </message>
    <message>
        <source>Save API URL</source>
        <translation>保存 API 地址</translation>
    </message>
    <message>
        <source>Reset API URL to default</source>
        <translation>将 API 地址恢复为默认值</translation>
    </message>
    <message>
        <source>Where the Tovra service reaches the account and location servers. Change it only when support asks you to.</source>
        <translation>Tovra 服务访问账户和节点服务器所用的地址。仅在技术支持要求时更改。</translation>
    </message>
    <message>
        <source>Validation: %1</source>
        <translation>验证：%1</translation>
    </message>
    <message>
        <source>Validated by the Tovra service</source>
        <translation>已由 Tovra 服务验证</translation>
    </message>
    <message>
        <source>Not validated: the Tovra service saved this address but could not confirm it</source>
        <translation>未验证：Tovra 服务已保存此地址，但无法确认其可用</translation>
    </message>
</context>
<context>
    <name>Continents</name>
    <message>
        <source>Africa</source>
        <translation>非洲</translation>
    </message>
    <message>
        <source>Antarctica</source>
        <translation>南极洲</translation>
    </message>
    <message>
        <source>Asia</source>
        <translation>亚洲</translation>
    </message>
    <message>
        <source>Europe</source>
        <translation>欧洲</translation>
    </message>
    <message>
        <source>Middle East</source>
        <translation>中东</translation>
    </message>
    <message>
        <source>North America</source>
        <translation>北美洲</translation>
    </message>
    <message>
        <source>Oceania</source>
        <translation>大洋洲</translation>
    </message>
    <message>
        <source>South America</source>
        <translation>南美洲</translation>
    </message>
</context>
<context>
    <name>ControlClient</name>
    <message>
        <source>Tovra daemon is not running.</source>
        <translation>Tovra 服务未运行。</translation>
    </message>
    <message>
        <source>Tovra daemon access denied. Add this user to the tovracli group, then sign out and back in.</source>
        <translation>无权访问 Tovra 服务。请将此用户加入 tovracli 组，然后注销并重新登录。</translation>
    </message>
    <message>
        <source>Could not connect to Tovra daemon.</source>
        <translation>无法连接到 Tovra 服务。</translation>
    </message>
    <message>
        <source>Tovra daemon is too old for Kill Switch modes. Update Tovra.</source>
        <translation>Tovra 服务版本过旧，不支持断网保护模式。请更新 Tovra。</translation>
    </message>
</context>
<context>
    <name>Countries</name>
    <message>
        <source>Afghanistan</source>
        <translation>阿富汗</translation>
    </message>
    <message>
        <source>Land Islands</source>
        <translation>奥兰群岛</translation>
    </message>
    <message>
        <source>Albania</source>
        <translation>阿尔巴尼亚</translation>
    </message>
    <message>
        <source>Algeria</source>
        <translation>阿尔及利亚</translation>
    </message>
    <message>
        <source>American Samoa</source>
        <translation>美属萨摩亚</translation>
    </message>
    <message>
        <source>Andorra</source>
        <translation>安道尔</translation>
    </message>
    <message>
        <source>Angola</source>
        <translation>安哥拉</translation>
    </message>
    <message>
        <source>Anguilla</source>
        <translation>安圭拉</translation>
    </message>
    <message>
        <source>Antigua and Barbuda</source>
        <translation>安提瓜和巴布达</translation>
    </message>
    <message>
        <source>Argentina</source>
        <translation>阿根廷</translation>
    </message>
    <message>
        <source>Armenia</source>
        <translation>亚美尼亚</translation>
    </message>
    <message>
        <source>Aruba</source>
        <translation>阿鲁巴</translation>
    </message>
    <message>
        <source>Australia</source>
        <translation>澳大利亚</translation>
    </message>
    <message>
        <source>Austria</source>
        <translation>奥地利</translation>
    </message>
    <message>
        <source>Azerbaijan</source>
        <translation>阿塞拜疆</translation>
    </message>
    <message>
        <source>Bahamas</source>
        <translation>巴哈马</translation>
    </message>
    <message>
        <source>Bahrain</source>
        <translation>巴林</translation>
    </message>
    <message>
        <source>Bangladesh</source>
        <translation>孟加拉</translation>
    </message>
    <message>
        <source>Barbados</source>
        <translation>巴巴多斯</translation>
    </message>
    <message>
        <source>Belarus</source>
        <translation>白俄罗斯</translation>
    </message>
    <message>
        <source>Belgium</source>
        <translation>比利时</translation>
    </message>
    <message>
        <source>Belize</source>
        <translation>伯利兹</translation>
    </message>
    <message>
        <source>Benin</source>
        <translation>贝宁</translation>
    </message>
    <message>
        <source>Bermuda</source>
        <translation>百慕大</translation>
    </message>
    <message>
        <source>Bhutan</source>
        <translation>不丹</translation>
    </message>
    <message>
        <source>Bolivia</source>
        <translation>波利维亚</translation>
    </message>
    <message>
        <source>Bosnia and Herzegovina</source>
        <translation>波斯尼亚和黑塞哥维那</translation>
    </message>
    <message>
        <source>Botswana</source>
        <translation>博兹瓦那</translation>
    </message>
    <message>
        <source>Brazil</source>
        <translation>巴西</translation>
    </message>
    <message>
        <source>Brunei Darussalam</source>
        <translation>文莱</translation>
    </message>
    <message>
        <source>Bulgaria</source>
        <translation>保加利亚</translation>
    </message>
    <message>
        <source>Burkina Faso</source>
        <translation>布基纳法索</translation>
    </message>
    <message>
        <source>Burundi</source>
        <translation>布隆迪</translation>
    </message>
    <message>
        <source>Cambodia</source>
        <translation>柬埔塞</translation>
    </message>
    <message>
        <source>Cameroon</source>
        <translation>喀麦隆</translation>
    </message>
    <message>
        <source>Canada</source>
        <translation>加拿大</translation>
    </message>
    <message>
        <source>Cape Verde</source>
        <translation>佛得角</translation>
    </message>
    <message>
        <source>Cayman Islands</source>
        <translation>开曼群岛</translation>
    </message>
    <message>
        <source>Central African Republic</source>
        <translation>中非</translation>
    </message>
    <message>
        <source>Chad</source>
        <translation>乍得</translation>
    </message>
    <message>
        <source>Chile</source>
        <translation>智利</translation>
    </message>
    <message>
        <source>China</source>
        <translation>中国</translation>
    </message>
    <message>
        <source>Colombia</source>
        <translation>哥伦比亚</translation>
    </message>
    <message>
        <source>Comoros</source>
        <translation>科摩罗</translation>
    </message>
    <message>
        <source>Congo</source>
        <translation>刚果</translation>
    </message>
    <message>
        <source>Congo, The Democratic Republic of the</source>
        <translation>刚果民主共和国</translation>
    </message>
    <message>
        <source>Cook Islands</source>
        <translation>库克群岛</translation>
    </message>
    <message>
        <source>Costa Rica</source>
        <translation>哥斯达黎加</translation>
    </message>
    <message>
        <source>Cote D&apos;Ivoire</source>
        <translation>科特迪瓦</translation>
    </message>
    <message>
        <source>Croatia</source>
        <translation>克罗地亚</translation>
    </message>
    <message>
        <source>Cuba</source>
        <translation>古巴</translation>
    </message>
    <message>
        <source>Cyprus</source>
        <translation>塞浦路斯</translation>
    </message>
    <message>
        <source>Czech Republic</source>
        <translation>捷克</translation>
    </message>
    <message>
        <source>Denmark</source>
        <translation>丹麦</translation>
    </message>
    <message>
        <source>Djibouti</source>
        <translation>吉布提</translation>
    </message>
    <message>
        <source>Dominica</source>
        <translation>多米尼克</translation>
    </message>
    <message>
        <source>Dominican Republic</source>
        <translation>多米尼加共和国</translation>
    </message>
    <message>
        <source>Ecuador</source>
        <translation>厄瓜多尔</translation>
    </message>
    <message>
        <source>Egypt</source>
        <translation>埃及</translation>
    </message>
    <message>
        <source>El Salvador</source>
        <translation>萨尔瓦多</translation>
    </message>
    <message>
        <source>Equatorial Guinea</source>
        <translation>赤道几内亚</translation>
    </message>
    <message>
        <source>Eritrea</source>
        <translation>厄立特里亚</translation>
    </message>
    <message>
        <source>Estonia</source>
        <translation>爱沙尼亚</translation>
    </message>
    <message>
        <source>Ethiopia</source>
        <translation>埃塞俄比亚</translation>
    </message>
    <message>
        <source>Falkland Islands (Malvinas)</source>
        <translation>福克兰群岛(马尔维纳斯)</translation>
    </message>
    <message>
        <source>Faroe Islands</source>
        <translation>法罗群岛</translation>
    </message>
    <message>
        <source>Fiji</source>
        <translation>斐济</translation>
    </message>
    <message>
        <source>Finland</source>
        <translation>芬兰</translation>
    </message>
    <message>
        <source>France</source>
        <translation>法国</translation>
    </message>
    <message>
        <source>French Guiana</source>
        <translation>法属圭亚那</translation>
    </message>
    <message>
        <source>French Polynesia</source>
        <translation>法属玻利尼西亚</translation>
    </message>
    <message>
        <source>Gabon</source>
        <translation>加蓬</translation>
    </message>
    <message>
        <source>Gambia</source>
        <translation>冈比亚</translation>
    </message>
    <message>
        <source>Georgia</source>
        <translation>格鲁吉亚</translation>
    </message>
    <message>
        <source>Germany</source>
        <translation>德国</translation>
    </message>
    <message>
        <source>Ghana</source>
        <translation>加纳</translation>
    </message>
    <message>
        <source>Gibraltar</source>
        <translation>直布罗陀</translation>
    </message>
    <message>
        <source>Greece</source>
        <translation>希腊</translation>
    </message>
    <message>
        <source>Greenland</source>
        <translation>格陵兰</translation>
    </message>
    <message>
        <source>Grenada</source>
        <translation>格林纳达</translation>
    </message>
    <message>
        <source>Guadeloupe</source>
        <translation>瓜德罗普</translation>
    </message>
    <message>
        <source>Guam</source>
        <translation>关岛</translation>
    </message>
    <message>
        <source>Guatemala</source>
        <translation>瓜地马拉</translation>
    </message>
    <message>
        <source>Guernsey</source>
        <translation>根西岛</translation>
    </message>
    <message>
        <source>Guinea</source>
        <translation>几内亚</translation>
    </message>
    <message>
        <source>Guinea-Bissau</source>
        <translation>几内亚比绍</translation>
    </message>
    <message>
        <source>Guyana</source>
        <translation>圭亚那</translation>
    </message>
    <message>
        <source>Haiti</source>
        <translation>海地</translation>
    </message>
    <message>
        <source>Holy See (Vatican City State)</source>
        <translation>梵地冈</translation>
    </message>
    <message>
        <source>Honduras</source>
        <translation>洪都拉斯</translation>
    </message>
    <message>
        <source>Hong Kong (China)</source>
        <translation>香港</translation>
    </message>
    <message>
        <source>Hungary</source>
        <translation>匈牙利</translation>
    </message>
    <message>
        <source>Iceland</source>
        <translation>冰岛</translation>
    </message>
    <message>
        <source>India</source>
        <translation>印度</translation>
    </message>
    <message>
        <source>Indonesia</source>
        <translation>印度尼西亚</translation>
    </message>
    <message>
        <source>Iran, Islamic Republic of</source>
        <translation>伊朗</translation>
    </message>
    <message>
        <source>Iraq</source>
        <translation>伊拉克</translation>
    </message>
    <message>
        <source>Ireland</source>
        <translation>爱尔兰</translation>
    </message>
    <message>
        <source>Isle of Man</source>
        <translation>曼岛</translation>
    </message>
    <message>
        <source>Israel</source>
        <translation>以色列</translation>
    </message>
    <message>
        <source>Italy</source>
        <translation>意大利</translation>
    </message>
    <message>
        <source>Jamaica</source>
        <translation>牙买加</translation>
    </message>
    <message>
        <source>Japan</source>
        <translation>日本</translation>
    </message>
    <message>
        <source>Jersey</source>
        <translation>泽西岛</translation>
    </message>
    <message>
        <source>Jordan</source>
        <translation>约旦</translation>
    </message>
    <message>
        <source>Kazakhstan</source>
        <translation>哈萨克斯坦</translation>
    </message>
    <message>
        <source>Kenya</source>
        <translation>肯尼亚</translation>
    </message>
    <message>
        <source>Kiribati</source>
        <translation>基里巴斯</translation>
    </message>
    <message>
        <source>Korea, Democratic People&apos;S Republic of</source>
        <translation>朝鲜</translation>
    </message>
    <message>
        <source>Korea, Republic of</source>
        <translation>韩国</translation>
    </message>
    <message>
        <source>Kuwait</source>
        <translation>科威特</translation>
    </message>
    <message>
        <source>Kyrgyzstan</source>
        <translation>吉尔吉斯坦</translation>
    </message>
    <message>
        <source>Lao People&apos;S Democratic Republic</source>
        <translation>老挝</translation>
    </message>
    <message>
        <source>Latvia</source>
        <translation>拉脱维亚</translation>
    </message>
    <message>
        <source>Lebanon</source>
        <translation>黎巴嫩</translation>
    </message>
    <message>
        <source>Lesotho</source>
        <translation>莱索托</translation>
    </message>
    <message>
        <source>Liberia</source>
        <translation>利比里亚</translation>
    </message>
    <message>
        <source>Libyan Arab Jamahiriya</source>
        <translation>利比亚</translation>
    </message>
    <message>
        <source>Liechtenstein</source>
        <translation>列支敦士登</translation>
    </message>
    <message>
        <source>Lithuania</source>
        <translation>立陶宛</translation>
    </message>
    <message>
        <source>Luxembourg</source>
        <translation>卢森堡</translation>
    </message>
    <message>
        <source>Macao (China)</source>
        <translation>澳门</translation>
    </message>
    <message>
        <source>Macedonia, The Former Yugoslav Republic of</source>
        <translation>北马其顿</translation>
    </message>
    <message>
        <source>Madagascar</source>
        <translation>马达加斯加</translation>
    </message>
    <message>
        <source>Malawi</source>
        <translation>马拉维</translation>
    </message>
    <message>
        <source>Malaysia</source>
        <translation>马来西亚</translation>
    </message>
    <message>
        <source>Maldives</source>
        <translation>马尔代夫</translation>
    </message>
    <message>
        <source>Mali</source>
        <translation>马里</translation>
    </message>
    <message>
        <source>Malta</source>
        <translation>马尔他</translation>
    </message>
    <message>
        <source>Marshall Islands</source>
        <translation>马绍尔群岛</translation>
    </message>
    <message>
        <source>Martinique</source>
        <translation>马提尼克</translation>
    </message>
    <message>
        <source>Mauritania</source>
        <translation>毛里塔尼亚</translation>
    </message>
    <message>
        <source>Mauritius</source>
        <translation>毛里求斯</translation>
    </message>
    <message>
        <source>Mayotte</source>
        <translation>马约特</translation>
    </message>
    <message>
        <source>Mexico</source>
        <translation>墨西哥</translation>
    </message>
    <message>
        <source>Micronesia, Federated States of</source>
        <translation>密克罗尼西亚</translation>
    </message>
    <message>
        <source>Moldova, Republic of</source>
        <translation>摩尔多瓦</translation>
    </message>
    <message>
        <source>Monaco</source>
        <translation>摩纳哥</translation>
    </message>
    <message>
        <source>Mongolia</source>
        <translation>蒙古</translation>
    </message>
    <message>
        <source>Montenegro</source>
        <translation>黑山</translation>
    </message>
    <message>
        <source>Montserrat</source>
        <translation>蒙塞拉特岛</translation>
    </message>
    <message>
        <source>Morocco</source>
        <translation>摩洛哥</translation>
    </message>
    <message>
        <source>Mozambique</source>
        <translation>莫桑比克</translation>
    </message>
    <message>
        <source>Myanmar</source>
        <translation>缅甸</translation>
    </message>
    <message>
        <source>Namibia</source>
        <translation>纳米比亚</translation>
    </message>
    <message>
        <source>Nauru</source>
        <translation>瑙鲁</translation>
    </message>
    <message>
        <source>Nepal</source>
        <translation>尼泊尔</translation>
    </message>
    <message>
        <source>Netherlands</source>
        <translation>荷兰</translation>
    </message>
    <message>
        <source>New Caledonia</source>
        <translation>新喀里多尼亚</translation>
    </message>
    <message>
        <source>New Zealand</source>
        <translation>新西兰</translation>
    </message>
    <message>
        <source>Nicaragua</source>
        <translation>尼加拉瓜</translation>
    </message>
    <message>
        <source>Niger</source>
        <translation>尼日尔</translation>
    </message>
    <message>
        <source>Nigeria</source>
        <translation>尼日利亚</translation>
    </message>
    <message>
        <source>Niue</source>
        <translation>纽埃</translation>
    </message>
    <message>
        <source>Norfolk Island</source>
        <translation>诺福克岛</translation>
    </message>
    <message>
        <source>Northern Mariana Islands</source>
        <translation>北马里亚纳群岛</translation>
    </message>
    <message>
        <source>Norway</source>
        <translation>挪威</translation>
    </message>
    <message>
        <source>Oman</source>
        <translation>阿曼</translation>
    </message>
    <message>
        <source>Pakistan</source>
        <translation>巴基斯坦</translation>
    </message>
    <message>
        <source>Palau</source>
        <translation>帕劳</translation>
    </message>
    <message>
        <source>Palestinian Territory, Occupied</source>
        <translation>巴勒斯坦</translation>
    </message>
    <message>
        <source>Panama</source>
        <translation>巴拿马</translation>
    </message>
    <message>
        <source>Papua New Guinea</source>
        <translation>巴布亚新几内亚</translation>
    </message>
    <message>
        <source>Paraguay</source>
        <translation>巴拉圭</translation>
    </message>
    <message>
        <source>Peru</source>
        <translation>秘鲁</translation>
    </message>
    <message>
        <source>Philippines</source>
        <translation>菲律宾</translation>
    </message>
    <message>
        <source>Poland</source>
        <translation>波兰</translation>
    </message>
    <message>
        <source>Portugal</source>
        <translation>葡萄牙</translation>
    </message>
    <message>
        <source>Puerto Rico</source>
        <translation>波多黎各</translation>
    </message>
    <message>
        <source>Qatar</source>
        <translation>卡塔尔</translation>
    </message>
    <message>
        <source>Reunion</source>
        <translation>留尼汪</translation>
    </message>
    <message>
        <source>Romania</source>
        <translation>罗马尼亚</translation>
    </message>
    <message>
        <source>Russian Federation</source>
        <translation>俄罗斯</translation>
    </message>
    <message>
        <source>Rwanda</source>
        <translation>卢旺达</translation>
    </message>
    <message>
        <source>Saint Helena</source>
        <translation>圣赫勒拿-阿森松-特里斯坦达库尼亚</translation>
    </message>
    <message>
        <source>Saint Kitts and Nevis</source>
        <translation>圣基茨和尼维斯</translation>
    </message>
    <message>
        <source>Saint Lucia</source>
        <translation>圣路西亚</translation>
    </message>
    <message>
        <source>Saint Pierre and Miquelon</source>
        <translation>圣皮埃尔和密克隆</translation>
    </message>
    <message>
        <source>Saint Vincent and the Grenadines</source>
        <translation>圣文森特和格林纳丁斯</translation>
    </message>
    <message>
        <source>Samoa</source>
        <translation>萨摩亚</translation>
    </message>
    <message>
        <source>San Marino</source>
        <translation>圣马力诺市</translation>
    </message>
    <message>
        <source>Sao Tome and Principe</source>
        <translation>圣多美和普林西比</translation>
    </message>
    <message>
        <source>Saudi Arabia</source>
        <translation>沙特阿拉伯</translation>
    </message>
    <message>
        <source>Senegal</source>
        <translation>塞内加尔</translation>
    </message>
    <message>
        <source>Serbia</source>
        <translation>塞尔维亚</translation>
    </message>
    <message>
        <source>Seychelles</source>
        <translation>塞舌尔</translation>
    </message>
    <message>
        <source>Sierra Leone</source>
        <translation>塞拉利昂</translation>
    </message>
    <message>
        <source>Singapore</source>
        <translation>新加坡</translation>
    </message>
    <message>
        <source>Slovakia</source>
        <translation>斯洛伐克</translation>
    </message>
    <message>
        <source>Slovenia</source>
        <translation>斯洛文尼亚</translation>
    </message>
    <message>
        <source>Solomon Islands</source>
        <translation>所罗门群岛</translation>
    </message>
    <message>
        <source>Somalia</source>
        <translation>索马里</translation>
    </message>
    <message>
        <source>South Africa</source>
        <translation>南非</translation>
    </message>
    <message>
        <source>South Sudan</source>
        <translation>南苏丹</translation>
    </message>
    <message>
        <source>Spain</source>
        <translation>西班牙</translation>
    </message>
    <message>
        <source>Sri Lanka</source>
        <translation>斯里兰卡</translation>
    </message>
    <message>
        <source>Sudan</source>
        <translation>苏丹</translation>
    </message>
    <message>
        <source>Suriname</source>
        <translation>苏里南</translation>
    </message>
    <message>
        <source>Swaziland</source>
        <translation>斯威士兰</translation>
    </message>
    <message>
        <source>Sweden</source>
        <translation>瑞典</translation>
    </message>
    <message>
        <source>Switzerland</source>
        <translation>瑞士</translation>
    </message>
    <message>
        <source>Syrian Arab Republic</source>
        <translation>叙利亚</translation>
    </message>
    <message>
        <source>Taiwan (China)</source>
        <translation>台湾</translation>
    </message>
    <message>
        <source>Tajikistan</source>
        <translation>塔吉克斯坦</translation>
    </message>
    <message>
        <source>Tanzania, United Republic of</source>
        <translation>坦桑尼亚</translation>
    </message>
    <message>
        <source>Thailand</source>
        <translation>泰国</translation>
    </message>
    <message>
        <source>Timor-Leste</source>
        <translation>东帝汶</translation>
    </message>
    <message>
        <source>Togo</source>
        <translation>多哥</translation>
    </message>
    <message>
        <source>Tokelau</source>
        <translation>托克劳</translation>
    </message>
    <message>
        <source>Tonga</source>
        <translation>汤加</translation>
    </message>
    <message>
        <source>Trinidad and Tobago</source>
        <translation>特里尼达和多巴哥</translation>
    </message>
    <message>
        <source>Tunisia</source>
        <translation>突尼斯</translation>
    </message>
    <message>
        <source>Turkey</source>
        <translation>土耳其</translation>
    </message>
    <message>
        <source>Turkmenistan</source>
        <translation>土库曼斯坦</translation>
    </message>
    <message>
        <source>Turks and Caicos Islands</source>
        <translation>特克斯和凯科斯群岛</translation>
    </message>
    <message>
        <source>Tuvalu</source>
        <translation>图瓦卢</translation>
    </message>
    <message>
        <source>Uganda</source>
        <translation>乌干达</translation>
    </message>
    <message>
        <source>Ukraine</source>
        <translation>乌克兰</translation>
    </message>
    <message>
        <source>United Arab Emirates</source>
        <translation>阿联酋</translation>
    </message>
    <message>
        <source>United Kingdom</source>
        <translation>英国</translation>
    </message>
    <message>
        <source>United States</source>
        <translation>美国</translation>
    </message>
    <message>
        <source>Uruguay</source>
        <translation>乌拉圭</translation>
    </message>
    <message>
        <source>Uzbekistan</source>
        <translation>乌兹别克斯坦</translation>
    </message>
    <message>
        <source>Vanuatu</source>
        <translation>瓦努阿图</translation>
    </message>
    <message>
        <source>Venezuela</source>
        <translation>委内瑞拉</translation>
    </message>
    <message>
        <source>Viet Nam</source>
        <translation>越南</translation>
    </message>
    <message>
        <source>Virgin Islands, British</source>
        <translation>英属维尔京群岛</translation>
    </message>
    <message>
        <source>Virgin Islands, U.S.</source>
        <translation>美属维尔京群岛</translation>
    </message>
    <message>
        <source>Wallis and Futuna</source>
        <translation>瓦利斯和富图纳</translation>
    </message>
    <message>
        <source>Western Sahara</source>
        <translation>西撒哈拉</translation>
    </message>
    <message>
        <source>Yemen</source>
        <translation>也门</translation>
    </message>
    <message>
        <source>Zambia</source>
        <translation>赞比亚</translation>
    </message>
    <message>
        <source>Zimbabwe</source>
        <translation>津巴布韦</translation>
    </message>
</context>
<context>
    <name>DesktopAnswer</name>
    <message>
        <source>tovra: no location matches “%1”</source>
        <translation>tovra: 没有与“%1”匹配的节点</translation>
    </message>
    <message>
        <source>tovra: Tovra is busy with another connection or sign-in; try again when it has finished</source>
        <translation>tovra: Tovra 正忙于另一个连接或登录；请在其完成后重试</translation>
    </message>
    <message>
        <source>tovra: sign in to Tovra before connecting</source>
        <translation>tovra: 连接前请先登录 Tovra</translation>
    </message>
    <message>
        <source>tovra: your plan does not include “%1”</source>
        <translation>tovra: 您的套餐不包含“%1”</translation>
    </message>
    <message>
        <source>tovra: the request failed</source>
        <translation>tovra: 请求失败</translation>
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
        <translation>tovra: 只能指定以下其中一项：%1</translation>
    </message>
</context>
<context>
    <name>DesktopCommandSender</name>
    <message>
        <source>could not start Tovra</source>
        <translation>无法启动 Tovra</translation>
    </message>
    <message>
        <source>Tovra did not start</source>
        <translation>Tovra 未能启动</translation>
    </message>
    <message>
        <source>the running Tovra is an older version: it came to the front but did not act on the request; quit it and try again</source>
        <translation>正在运行的 Tovra 是旧版本：它已切换到前台，但没有执行该请求；请退出后重试</translation>
    </message>
    <message>
        <source>the running Tovra did not answer</source>
        <translation>正在运行的 Tovra 没有响应</translation>
    </message>
</context>
<context>
    <name>DiagnosticsSection</name>
    <message>
        <source>Configuration</source>
        <extracomment>Label of a folder path: where the service keeps its configuration</extracomment>
        <translation>配置目录</translation>
    </message>
    <message>
        <source>Runtime</source>
        <extracomment>Label of a folder path: where the service keeps its running files (socket, PID file); not a duration</extracomment>
        <translation>运行时目录</translation>
    </message>
    <message>
        <source>Logs</source>
        <extracomment>Label of a folder path: the service&apos;s log folder</extracomment>
        <translation>日志</translation>
    </message>
    <message>
        <source>State file</source>
        <extracomment>Label of a file path</extracomment>
        <translation>状态文件</translation>
    </message>
    <message>
        <source>Credentials key</source>
        <extracomment>Label of a file path: the key file for the stored account credentials</extracomment>
        <translation>凭据密钥</translation>
    </message>
    <message>
        <source>History</source>
        <extracomment>Label of a file path: the service&apos;s history file</extracomment>
        <translation>历史记录</translation>
    </message>
    <message>
        <source>Profiles</source>
        <extracomment>Label of a folder path: the service&apos;s profiles folder</extracomment>
        <translation>配置文件</translation>
    </message>
    <message>
        <source>Control socket</source>
        <extracomment>Label of a file path: the socket this app talks to the service through</extracomment>
        <translation>控制套接字</translation>
    </message>
    <message>
        <source>PID file</source>
        <extracomment>Label of a file path</extracomment>
        <translation>PID 文件</translation>
    </message>
    <message>
        <source>Control address</source>
        <extracomment>Label of an address the service listens on for control requests</extracomment>
        <translation>控制地址</translation>
    </message>
    <message>
        <source>Diagnostics</source>
        <translation>诊断</translation>
    </message>
    <message>
        <source>Repair</source>
        <extracomment>Button that resets the kill switch, local proxy and tunnel</extracomment>
        <translation>修复</translation>
    </message>
    <message>
        <source>Open logs</source>
        <extracomment>Button that opens the log folder</extracomment>
        <translation>打开日志</translation>
    </message>
    <message>
        <source>Repair connection</source>
        <translation>修复连接</translation>
    </message>
    <message>
        <source>Resets the kill switch, the local proxy and the tunnel when traffic is stuck.</source>
        <translation>流量卡住时，重置断网保护、本地代理和隧道。</translation>
    </message>
    <message>
        <source>The Tovra service&apos;s log folder, for support.</source>
        <translation>Tovra 服务的日志文件夹，供技术支持使用。</translation>
    </message>
    <message>
        <source>Copy</source>
        <extracomment>Button that copies the path next to it</extracomment>
        <translation>复制</translation>
    </message>
    <message>
        <source>Copy %1 path</source>
        <extracomment>%1 is one of the path labels above, such as &quot;Runtime&quot;</extracomment>
        <translation>复制%1路径</translation>
    </message>
    <message>
        <source>Service paths</source>
        <translation>服务路径</translation>
    </message>
    <message>
        <source>Where the Tovra service keeps its files.</source>
        <translation>Tovra 服务存放文件的位置。</translation>
    </message>
    <message>
        <source>Tovra service version</source>
        <translation>Tovra 服务版本</translation>
    </message>
    <message>
        <source>Control protocol</source>
        <translation>控制协议</translation>
    </message>
    <message>
        <source>This app speaks version 1.</source>
        <translation>本应用使用第 1 版协议。</translation>
    </message>
    <message>
        <source>Not set</source>
        <translation>未设置</translation>
    </message>
    <message>
        <source>%1, not compatible</source>
        <translation>%1，不兼容</translation>
    </message>
</context>
<context>
    <name>FieldClearButton</name>
    <message>
        <source>Clear search</source>
        <translation>清除搜索</translation>
    </message>
    <message>
        <source>Clear text</source>
        <translation>清除文本</translation>
    </message>
</context>
<context>
    <name>GuiAutostart</name>
    <message>
        <source>Login startup is not supported on this platform.</source>
        <translation>此平台不支持登录时启动。</translation>
    </message>
    <message>
        <source>Could not resolve the Tovra executable for login startup.</source>
        <translation>找不到用于登录时启动的 Tovra 可执行文件。</translation>
    </message>
    <message>
        <source>Could not prepare the login startup directory.</source>
        <translation>无法准备登录启动目录。</translation>
    </message>
    <message>
        <source>Could not update Tovra login startup.</source>
        <translation>无法更新 Tovra 的登录启动项。</translation>
    </message>
    <message>
        <source>Could not secure Tovra login startup.</source>
        <translation>无法为 Tovra 的登录启动项设置安全权限。</translation>
    </message>
    <message>
        <source>Could not remove Tovra from login startup.</source>
        <translation>无法将 Tovra 从登录启动项中移除。</translation>
    </message>
</context>
<context>
    <name>KeyboardShortcutsDialog</name>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>键盘快捷键</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>键盘快捷键</translation>
    </message>
    <message>
        <source>These keys work anywhere in the Tovra window. Tab moves between controls.</source>
        <translation>这些按键在 Tovra 窗口的任何位置都可用。Tab 键在控件之间移动。</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>按键</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>操作</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Button that closes the keyboard shortcuts list</extracomment>
        <translation>关闭</translation>
    </message>
</context>
<context>
    <name>KillSwitchConfirm</name>
    <message>
        <source>Unavailable</source>
        <translation>不可用</translation>
    </message>
    <message>
        <source>Lockdown</source>
        <translation>强制锁定</translation>
    </message>
    <message>
        <source>Lockdown unavailable</source>
        <translation>强制锁定不可用</translation>
    </message>
    <message>
        <source>On</source>
        <extracomment>State of the kill switch: turned on</extracomment>
        <translation>已开启</translation>
    </message>
    <message>
        <source>Off</source>
        <extracomment>State of the kill switch: turned off</extracomment>
        <translation>已关闭</translation>
    </message>
    <message>
        <source>Kill Switch needs a VPN mode</source>
        <translation>断网保护需要 VPN 模式</translation>
    </message>
    <message>
        <source>Kill Switch can’t run in Tovra Proxy. Switch to Auto (recommended), TovraVPN, or WireGuard to enable it.</source>
        <translation>断网保护无法在 Tovra Proxy 模式下运行。请切换到自动（推荐）、TovraVPN 或 WireGuard 后再启用。</translation>
    </message>
    <message>
        <source>Switch to Auto and enable</source>
        <extracomment>Button that switches to the Auto mode and turns the kill switch on</extracomment>
        <translation>切换到自动并启用</translation>
    </message>
    <message>
        <source>Switch to Auto and enable Kill Switch</source>
        <translation>切换到自动模式并启用断网保护</translation>
    </message>
    <message>
        <source>Choose mode…</source>
        <extracomment>Button that opens the Mode page to pick a VPN mode</extracomment>
        <translation>选择模式…</translation>
    </message>
    <message>
        <source>Choose a mode for Kill Switch</source>
        <translation>为断网保护选择模式</translation>
    </message>
    <message>
        <source>Cancel</source>
        <extracomment>Button</extracomment>
        <translation>取消</translation>
    </message>
    <message>
        <source>Tovra Proxy needs Kill Switch off</source>
        <translation>Tovra Proxy 需要关闭断网保护</translation>
    </message>
    <message>
        <source>Kill Switch blocks Tovra Proxy. Turn Kill Switch off in Settings first, then switch modes.</source>
        <translation>断网保护会阻止 Tovra Proxy。请先在设置中关闭断网保护，再切换模式。</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <extracomment>Button that opens the Settings page</extracomment>
        <translation>打开设置</translation>
    </message>
    <message>
        <source>Open Settings to turn off Kill Switch</source>
        <translation>打开设置以关闭断网保护</translation>
    </message>
</context>
<context>
    <name>KillSwitchSection</name>
    <message>
        <source>Kill Switch</source>
        <translation>断网保护</translation>
    </message>
    <message>
        <source>Block traffic outside the tunnel</source>
        <translation>阻止隧道外的流量</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>自动</translation>
    </message>
    <message>
        <source>Blocks traffic outside the tunnel while Tovra is connected or connecting.</source>
        <translation>Tovra 已连接或正在连接时，阻止隧道外的流量。</translation>
    </message>
    <message>
        <source>Always</source>
        <translation>始终</translation>
    </message>
    <message>
        <source>Blocks traffic outside the tunnel whenever Kill Switch is on, even while disconnected.</source>
        <translation>只要断网保护处于开启状态，即使未连接也阻止隧道外的流量。</translation>
    </message>
    <message>
        <source>Lockdown</source>
        <translation>强制锁定</translation>
    </message>
    <message>
        <source>Set by the Tovra service: traffic outside the tunnel stays blocked and Kill Switch cannot be turned off here.</source>
        <translation>由 Tovra 服务设定：隧道外的流量始终被阻止，且无法在此关闭断网保护。</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>模式</translation>
    </message>
    <message>
        <source>When Kill Switch blocks traffic.</source>
        <translation>断网保护何时阻止流量。</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>局域网</translation>
    </message>
    <message>
        <source>Whether printers, shares and other devices nearby stay reachable while traffic is blocked.</source>
        <translation>流量被阻止时，是否仍可访问打印机、共享文件夹等附近设备。</translation>
    </message>
    <message>
        <source>Kill Switch mode: %1</source>
        <translation>断网保护模式：%1</translation>
    </message>
    <message>
        <source>Now: %1</source>
        <translation>当前：%1</translation>
    </message>
    <message>
        <source>%1. The Tovra service holds Kill Switch on; it cannot be turned off here.</source>
        <translation>%1。Tovra 服务使断网保护保持开启，无法在此关闭。</translation>
    </message>
    <message>
        <source>Tovra Proxy is in use: Kill Switch needs a VPN mode.</source>
        <translation>正在使用 Tovra Proxy：断网保护需要 VPN 模式。</translation>
    </message>
    <message>
        <source>Reachable</source>
        <translation>可访问</translation>
    </message>
    <message>
        <source>Blocked</source>
        <translation>已阻止</translation>
    </message>
</context>
<context>
    <name>LanguagePickerDialog</name>
    <message>
        <source>Language</source>
        <translation>语言</translation>
    </message>
    <message>
        <source>Use system language</source>
        <translation>使用系统语言</translation>
    </message>
    <message>
        <source>Use system language (%1)</source>
        <translation>使用系统语言（%1）</translation>
    </message>
    <message>
        <source>Follow the desktop&apos;s language</source>
        <translation>跟随桌面语言</translation>
    </message>
    <message>
        <source>Choose a language</source>
        <translation>选择语言</translation>
    </message>
    <message>
        <source>Tovra restarts to show the new language.</source>
        <translation>Tovra 将重新启动以显示新语言。</translation>
    </message>
    <message>
        <source>Search languages</source>
        <translation>搜索语言</translation>
    </message>
    <message>
        <source>Languages</source>
        <translation>语言</translation>
    </message>
    <message>
        <source>Use language</source>
        <extracomment>Button that switches to the chosen language</extracomment>
        <translation>使用此语言</translation>
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
        <translation>Tovra 服务不可用。
服务响应后，节点将显示在这里。</translation>
    </message>
    <message>
        <source>Loading locations...</source>
        <translation>正在加载节点...</translation>
    </message>
    <message>
        <source>The service has no locations to offer right now.
Try Refresh in a moment.</source>
        <translation>服务目前没有可用的节点。
请稍后点击“刷新”重试。</translation>
    </message>
    <message>
        <source>No favourites yet.
Star a location (or select it and press Space) to keep it here.</source>
        <translation>还没有收藏。
点击节点的星标（或选中后按空格键），即可将其收藏在这里。</translation>
    </message>
    <message>
        <source>No locations in this tab.</source>
        <translation>此标签页中没有节点。</translation>
    </message>
    <message>
        <source>Nothing matches “%1”.
Try a country, a city or a code such as “de”.</source>
        <translation>没有与“%1”匹配的结果。
请尝试输入国家、城市或代码，例如“de”。</translation>
    </message>
    <message>
        <source>Could not load the locations: %1
Press Refresh to try again.</source>
        <extracomment>%1 is the service&apos;s own error text</extracomment>
        <translation>无法加载节点：%1
请点击“刷新”重试。</translation>
    </message>
</context>
<context>
    <name>LocationsFavoriteButton</name>
    <message>
        <source>Remove from favourites</source>
        <translation>取消收藏</translation>
    </message>
    <message>
        <source>Add to favourites</source>
        <translation>加入收藏</translation>
    </message>
    <message>
        <source>Select a location in the list to star it</source>
        <translation>在列表中选中一个节点即可收藏</translation>
    </message>
    <message>
        <source>Remove %1 from favourites</source>
        <translation>将 %1 取消收藏</translation>
    </message>
    <message>
        <source>Add %1 to favourites</source>
        <translation>将 %1 加入收藏</translation>
    </message>
</context>
<context>
    <name>LocationsPage</name>
    <message>
        <source>All locations</source>
        <translation>全部节点</translation>
    </message>
    <message>
        <source>Double-click a location to connect to it, or a country or city to connect to its fastest location.</source>
        <translation>双击节点即可连接；双击国家或城市将连接其中最快的节点。</translation>
    </message>
    <message>
        <source>Search countries, cities, locations or P2P</source>
        <translation>搜索国家、城市、节点或 P2P</translation>
    </message>
    <message>
        <source>Search locations</source>
        <translation>搜索节点</translation>
    </message>
    <message>
        <source>None of the locations in %1 is included in your plan.</source>
        <translation>%1 中的节点均不在您的套餐内。</translation>
    </message>
    <message>
        <source>%1 is not included in your plan. Upgrade to use it.</source>
        <translation>%1 不在您的套餐内。升级后即可使用。</translation>
    </message>
    <message>
        <source>Location actions</source>
        <translation>节点操作</translation>
    </message>
    <message>
        <source>Connect to the fastest location</source>
        <translation>连接到最快的节点</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>连接</translation>
    </message>
    <message>
        <source>Collapse</source>
        <translation>折叠</translation>
    </message>
    <message>
        <source>Expand</source>
        <translation>展开</translation>
    </message>
    <message>
        <source>Remove from favourites</source>
        <translation>取消收藏</translation>
    </message>
    <message>
        <source>Add to favourites</source>
        <translation>加入收藏</translation>
    </message>
</context>
<context>
    <name>LocationsStatusLine</name>
    <message>
        <source>Matches in every tab: %1</source>
        <translation>所有标签页中的匹配项：%1</translation>
    </message>
    <message>
        <source>Locations: %1</source>
        <translation>节点数：%1</translation>
    </message>
    <message>
        <source>Connected to %1</source>
        <translation>已连接到 %1</translation>
    </message>
    <message>
        <source>Measuring latency...</source>
        <translation>正在测量延迟...</translation>
    </message>
    <message>
        <source>This list may be out of date; Refresh fetches a new one.</source>
        <translation>此列表可能已过时；点击“刷新”可获取新列表。</translation>
    </message>
    <message>
        <source>Grouping by region until the service&apos;s groups arrive.</source>
        <translation>在收到服务提供的分组之前，暂按地区分组。</translation>
    </message>
</context>
<context>
    <name>LocationsToolbar</name>
    <message>
        <source>All</source>
        <translation>全部</translation>
    </message>
    <message>
        <source>Free</source>
        <translation>免费</translation>
    </message>
    <message>
        <source>Premium</source>
        <translation>高级</translation>
    </message>
    <message>
        <source>Favourites</source>
        <translation>收藏</translation>
    </message>
    <message>
        <source>Location tabs</source>
        <translation>节点标签页</translation>
    </message>
    <message>
        <source>Sort locations</source>
        <translation>节点排序</translation>
    </message>
    <message>
        <source>Service order</source>
        <translation>默认顺序</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Latency</source>
        <translation>延迟</translation>
    </message>
    <message>
        <source>Order of the locations within each group</source>
        <translation>各分组内节点的排列顺序</translation>
    </message>
    <message>
        <source>Fetch the list of locations again and measure their latency</source>
        <translation>重新获取节点列表并测量延迟</translation>
    </message>
    <message>
        <source>Refresh (%1s)</source>
        <extracomment>Button, disabled for %1 more seconds before the list can be fetched again</extracomment>
        <translation>刷新（%1 秒）</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>刷新</translation>
    </message>
    <message>
        <source>Refresh locations, possible again in %1 s</source>
        <translation>刷新节点（%1 秒后可再次刷新）</translation>
    </message>
    <message>
        <source>Refresh locations</source>
        <translation>刷新节点</translation>
    </message>
</context>
<context>
    <name>LocationsTreeView</name>
    <message>
        <source>Locations</source>
        <translation>节点</translation>
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
        <translation>无法完成操作</translation>
    </message>
    <message>
        <source>Settings operation failed</source>
        <extracomment>Shown when changing a setting failed without a reason. Word it as a user would understand it: &quot;Could not change the settings&quot;</extracomment>
        <translation>无法更改设置</translation>
    </message>
    <message>
        <source>Mode operation failed</source>
        <extracomment>Shown when changing the mode failed without a reason. Word it as a user would understand it: &quot;Could not change the mode&quot;</extracomment>
        <translation>无法更改模式</translation>
    </message>
</context>
<context>
    <name>ModeChoiceCard</name>
    <message>
        <source>Tovra picks the protocol that works best here.</source>
        <translation>由 Tovra 选择当前网络下效果最好的协议。</translation>
    </message>
    <message>
        <source>A fast, modern tunnel for all your traffic.</source>
        <translation>快速、现代的隧道，承载您的全部流量。</translation>
    </message>
    <message>
        <source>All traffic goes through the TovraVPN tunnel.</source>
        <translation>所有流量均经由 TovraVPN 隧道。</translation>
    </message>
    <message>
        <source>The tunnel by default; chosen regions and sites go direct.</source>
        <translation>默认经由隧道；所选地区和网站直连。</translation>
    </message>
    <message>
        <source>No tunnel: apps that use the local proxy reach the internet through Tovra.</source>
        <translation>不使用隧道：使用本地代理的应用通过 Tovra 访问互联网。</translation>
    </message>
    <message>
        <source>The local proxy, with chosen regions and sites going direct.</source>
        <translation>使用本地代理，所选地区和网站直连。</translation>
    </message>
    <message>
        <source>Applying…</source>
        <translation>正在应用…</translation>
    </message>
    <message>
        <source>Kill Switch needs a VPN mode: pick Auto, WireGuard or TovraVPN to turn it on.</source>
        <translation>断网保护需要 VPN 模式：请选择自动、WireGuard 或 TovraVPN 后再开启。</translation>
    </message>
    <message>
        <source>Choose a mode</source>
        <translation>选择模式</translation>
    </message>
    <message>
        <source>The current mode shows once the Tovra service answers.</source>
        <translation>Tovra 服务响应后将显示当前模式。</translation>
    </message>
    <message>
        <source>Current mode: %1. This version of Tovra does not know it; choose one of the modes above to replace it.</source>
        <translation>当前模式：%1。此版本的 Tovra 无法识别该模式；请从上方选择一种模式来替换。</translation>
    </message>
</context>
<context>
    <name>ModePage</name>
    <message>
        <source>Auto</source>
        <translation>自动</translation>
    </message>
    <message>
        <source>WireGuard</source>
        <translation>WireGuard</translation>
    </message>
    <message>
        <source>TovraVPN Split</source>
        <translation>TovraVPN 分流</translation>
    </message>
    <message>
        <source>TovraVPN Global</source>
        <translation>TovraVPN 全局</translation>
    </message>
    <message>
        <source>Tovra Proxy Split</source>
        <translation>Tovra Proxy 分流</translation>
    </message>
    <message>
        <source>Tovra Proxy Global</source>
        <translation>Tovra Proxy 全局</translation>
    </message>
    <message>
        <source>Routing mode</source>
        <translation>路由模式</translation>
    </message>
    <message>
        <source>Choose how your traffic is routed and which sites bypass the tunnel.</source>
        <translation>选择流量的路由方式，以及哪些网站绕过隧道。</translation>
    </message>
</context>
<context>
    <name>NavigationSidebar</name>
    <message>
        <source>Locations</source>
        <translation>节点</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>模式</translation>
    </message>
    <message>
        <source>VPN</source>
        <translation>VPN</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>账户</translation>
    </message>
</context>
<context>
    <name>NetworkOptionsCard</name>
    <message>
        <source>Local network</source>
        <translation>局域网</translation>
    </message>
    <message>
        <source>System proxy</source>
        <translation>系统代理</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>网络</translation>
    </message>
    <message>
        <source>Direct</source>
        <extracomment>Local network option: devices nearby are reached outside the tunnel</extracomment>
        <translation>直连</translation>
    </message>
    <message>
        <source>Printers, shares and other devices on your network stay reachable</source>
        <translation>仍可访问网络中的打印机、共享文件夹等设备</translation>
    </message>
    <message>
        <source>Protected</source>
        <extracomment>Local network option: local traffic goes through the tunnel like the rest</extracomment>
        <translation>受保护</translation>
    </message>
    <message>
        <source>Local network traffic is protected like the rest</source>
        <translation>局域网流量与其他流量一样受到保护</translation>
    </message>
    <message>
        <source>Off</source>
        <extracomment>System proxy option: the desktop proxy settings are left alone</extracomment>
        <translation>关闭</translation>
    </message>
    <message>
        <source>The desktop&apos;s proxy settings are left alone</source>
        <translation>不更改桌面的代理设置</translation>
    </message>
    <message>
        <source>On</source>
        <extracomment>System proxy option: the desktop proxy settings point at Tovra</extracomment>
        <translation>开启</translation>
    </message>
    <message>
        <source>The desktop&apos;s proxy settings point at Tovra</source>
        <translation>桌面的代理设置指向 Tovra</translation>
    </message>
    <message>
        <source>Lock</source>
        <extracomment>System proxy option, a state rather than an action: the desktop proxy settings point at Tovra and other programs cannot change them</extracomment>
        <translation>锁定</translation>
    </message>
    <message>
        <source>The desktop&apos;s proxy settings point at Tovra and are kept so</source>
        <translation>桌面的代理设置指向 Tovra，并保持不变</translation>
    </message>
    <message>
        <source>Whether devices on your local network stay reachable while Tovra routes your traffic.</source>
        <translation>Tovra 接管流量时，是否仍可访问局域网中的设备。</translation>
    </message>
    <message>
        <source>Point the desktop&apos;s proxy settings at Tovra, or also keep other programs from changing them.</source>
        <translation>将桌面的代理设置指向 Tovra，或同时禁止其他程序更改这些设置。</translation>
    </message>
</context>
<context>
    <name>NetworkSection</name>
    <message>
        <source>Network</source>
        <translation>网络</translation>
    </message>
    <message>
        <source>SOCKS5 listener</source>
        <translation>SOCKS5 监听地址</translation>
    </message>
    <message>
        <source>HTTP listener</source>
        <translation>HTTP 监听地址</translation>
    </message>
    <message>
        <source>Apply listeners</source>
        <extracomment>Button that applies the SOCKS5 and HTTP listen addresses typed above</extracomment>
        <translation>应用监听地址</translation>
    </message>
    <message>
        <source>Local DNS servers</source>
        <translation>本地 DNS 服务器</translation>
    </message>
    <message>
        <source>For example 192.168.1.1, ::1</source>
        <translation>例如 192.168.1.1, ::1</translation>
    </message>
    <message>
        <source>Save servers</source>
        <extracomment>Button that saves the local DNS servers typed in the field</extracomment>
        <translation>保存服务器</translation>
    </message>
    <message>
        <source>Clear servers</source>
        <extracomment>Button that empties the list of local DNS servers</extracomment>
        <translation>清除服务器</translation>
    </message>
    <message>
        <source>Reset split DNS</source>
        <extracomment>Button that puts the split DNS settings back to their defaults</extracomment>
        <translation>重置分流 DNS</translation>
    </message>
    <message>
        <source>Off</source>
        <extracomment>System proxy choice: the desktop proxy settings are left alone</extracomment>
        <translation>关闭</translation>
    </message>
    <message>
        <source>On</source>
        <extracomment>System proxy choice: the desktop proxy settings point at Tovra</extracomment>
        <translation>开启</translation>
    </message>
    <message>
        <source>On and locked</source>
        <translation>开启并锁定</translation>
    </message>
    <message>
        <source>System proxy</source>
        <translation>系统代理</translation>
    </message>
    <message>
        <source>Points the desktop&apos;s proxy settings at Tovra; locked keeps other programs from changing them.</source>
        <translation>将桌面的代理设置指向 Tovra；锁定后其他程序无法更改这些设置。</translation>
    </message>
    <message>
        <source>Direct</source>
        <extracomment>Local network choice: devices nearby are reached outside the tunnel</extracomment>
        <translation>直连</translation>
    </message>
    <message>
        <source>Protected</source>
        <extracomment>Local network choice: local traffic goes through the tunnel like the rest</extracomment>
        <translation>受保护</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>局域网</translation>
    </message>
    <message>
        <source>Direct reaches devices nearby outside the tunnel; protected sends everything through it.</source>
        <translation>直连：在隧道之外访问附近设备；受保护：所有流量均经由隧道。</translation>
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
        <translation>本地代理监听地址</translation>
    </message>
    <message>
        <source>Addresses where the daemon accepts proxy connections, as host:port. Leave a field empty to close that listener.</source>
        <translation>服务接受代理连接的地址，格式为“主机:端口”。留空则关闭对应的监听。</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>自动</translation>
    </message>
    <message>
        <source>Local DNS</source>
        <translation>本地 DNS</translation>
    </message>
    <message>
        <source>Remote DNS</source>
        <translation>远程 DNS</translation>
    </message>
    <message>
        <source>Split DNS</source>
        <translation>分流 DNS</translation>
    </message>
    <message>
        <source>Which resolver answers for names that stay outside the tunnel.</source>
        <translation>由哪个 DNS 服务器解析不经过隧道的域名。</translation>
    </message>
    <message>
        <source>IP addresses of the resolvers for local names, separated by commas.</source>
        <translation>用于解析本地域名的 DNS 服务器 IP 地址，以逗号分隔。</translation>
    </message>
    <message>
        <source>In effect: %1</source>
        <translation>当前生效：%1</translation>
    </message>
    <message>
        <source>none</source>
        <translation>无</translation>
    </message>
    <message>
        <source>In effect: %1, servers %2</source>
        <translation>当前生效：%1，服务器：%2</translation>
    </message>
    <message>
        <source>(from %1)</source>
        <translation>（来自 %1）</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>未知</translation>
    </message>
    <message>
        <source>(from the system settings)</source>
        <translation>（来自系统设置）</translation>
    </message>
    <message>
        <source>(from your list)</source>
        <translation>（来自您的列表）</translation>
    </message>
</context>
<context>
    <name>NotificationHost</name>
    <message>
        <source>Dismiss notification</source>
        <translation>关闭通知</translation>
    </message>
    <message>
        <source>Notification: %1</source>
        <translation>通知：%1</translation>
    </message>
</context>
<context>
    <name>QCoreApplication::ShellText</name>
    <message>
        <source>Custom split rules unchanged</source>
        <translation>自定义分流规则未更改</translation>
    </message>
</context>
<context>
    <name>QCoreApplication::TrayMenuText</name>
    <message>
        <source>Connect</source>
        <translation>连接</translation>
    </message>
</context>
<context>
    <name>QuickEntryField</name>
    <message>
        <source>Search for a country, city or location</source>
        <translation>搜索国家、城市或节点</translation>
    </message>
    <message>
        <source>Quick connect search</source>
        <translation>快速连接搜索</translation>
    </message>
</context>
<context>
    <name>QuickEntryModel</name>
    <message>
        <source>Recent searches</source>
        <translation>最近搜索</translation>
    </message>
    <message>
        <source>Recent locations</source>
        <translation>最近使用的节点</translation>
    </message>
    <message>
        <source>Type a country, city or location name</source>
        <translation>输入国家、城市或节点名称</translation>
    </message>
    <message>
        <source>No locations match “%1”</source>
        <translation>没有与“%1”匹配的节点</translation>
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
        <translation>搜索结果</translation>
    </message>
</context>
<context>
    <name>SettingsCard</name>
    <message>
        <source>Unknown</source>
        <translation>未知</translation>
    </message>
</context>
<context>
    <name>SettingsPage</name>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>偏好设置</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>正在应用设置...</translation>
    </message>
    <message>
        <source>Changes take effect once the Tovra service confirms them.</source>
        <translation>更改将在 Tovra 服务确认后生效。</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Settings can be changed again once the Tovra service answers.</source>
        <translation>Tovra 服务响应后即可再次更改设置。</translation>
    </message>
    <message>
        <source>Waiting for the Tovra service...</source>
        <translation>正在等待 Tovra 服务...</translation>
    </message>
</context>
<context>
    <name>SettingsRow</name>
    <message>
        <source>%1: %2</source>
        <comment>row title: help text</comment>
        <translation>%1：%2</translation>
    </message>
</context>
<context>
    <name>SettingsValidator</name>
    <message>
        <source>Add a port: host:port, for example 127.0.0.1:1080.</source>
        <translation>请添加端口，格式为“主机:端口”，例如 127.0.0.1:1080。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an IPv6 address.</source>
        <translation>“%1”不是 IPv6 地址。</translation>
    </message>
    <message>
        <source>Write an IPv6 address in brackets: [::1]:1080.</source>
        <translation>IPv6 地址请写在方括号中，例如 [::1]:1080。</translation>
    </message>
    <message>
        <source>Add a host before the port: host:port.</source>
        <translation>请在端口前添加主机，格式为“主机:端口”。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a host name or IP address.</source>
        <translation>“%1”不是主机名或 IP 地址。</translation>
    </message>
    <message>
        <source>Add a port after the colon: host:port.</source>
        <translation>请在冒号后添加端口，格式为“主机:端口”。</translation>
    </message>
    <message>
        <source>The port must be a number from 1 to 65535.</source>
        <translation>端口必须是 1 到 65535 之间的数字。</translation>
    </message>
    <message>
        <source>Enter an API URL, or reset it to the default.</source>
        <translation>请输入 API 地址，或将其恢复为默认值。</translation>
    </message>
    <message>
        <source>The API URL must start with http:// or https://.</source>
        <translation>API 地址必须以 http:// 或 https:// 开头。</translation>
    </message>
    <message>
        <source>The API URL needs a host, for example https://api.example.com.</source>
        <translation>API 地址必须包含主机，例如 https://api.example.com。</translation>
    </message>
    <message>
        <source>Enter at least one DNS server, or clear the list.</source>
        <translation>请至少输入一个 DNS 服务器，或清空列表。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an IP address.</source>
        <translation>“%1”不是 IP 地址。</translation>
    </message>
</context>
<context>
    <name>SplitOptionsCard</name>
    <message>
        <source>Choose TovraVPN Split or Tovra Proxy Split to send some traffic direct: by region, by the GFWList or by your own rules.</source>
        <translation>选择 TovraVPN 分流或 Tovra Proxy 分流，即可按地区、GFWList 或自定义规则让部分流量直连。</translation>
    </message>
    <message>
        <source>Default route</source>
        <translation>默认路由</translation>
    </message>
    <message>
        <source>Direct</source>
        <extracomment>Default route choice: traffic goes straight to the internet, outside the tunnel or proxy</extracomment>
        <translation>直连</translation>
    </message>
    <message>
        <source>Everything not chosen below goes direct</source>
        <translation>下方未选择的流量均直连</translation>
    </message>
    <message>
        <source>Choose…</source>
        <extracomment>Button that opens the region picker</extracomment>
        <translation>选择…</translation>
    </message>
    <message>
        <source>Choose regions</source>
        <translation>选择地区</translation>
    </message>
    <message>
        <source>Regions</source>
        <translation>地区</translation>
    </message>
    <message>
        <source>Custom split rules</source>
        <translation>自定义分流规则</translation>
    </message>
    <message>
        <source>Edit rules…</source>
        <extracomment>Button that opens the custom split rules editor</extracomment>
        <translation>编辑规则…</translation>
    </message>
    <message>
        <source>Edit custom split rules</source>
        <translation>编辑自定义分流规则</translation>
    </message>
    <message>
        <source>Split routing</source>
        <translation>分流路由</translation>
    </message>
    <message>
        <source>TovraVPN Split options</source>
        <translation>TovraVPN 分流选项</translation>
    </message>
    <message>
        <source>Tovra Proxy Split options</source>
        <translation>Tovra Proxy 分流选项</translation>
    </message>
    <message>
        <source>Tunnel</source>
        <translation>隧道</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>代理</translation>
    </message>
    <message>
        <source>Everything not chosen below goes through the tunnel</source>
        <translation>下方未选择的流量均经由隧道</translation>
    </message>
    <message>
        <source>Everything not chosen below goes through the proxy</source>
        <translation>下方未选择的流量均经由代理</translation>
    </message>
    <message>
        <source>Traffic goes direct unless a region, the GFWList or a rule says otherwise.</source>
        <translation>除非地区、GFWList 或规则另有指定，否则流量均直连。</translation>
    </message>
    <message>
        <source>Traffic goes through the tunnel unless a region or a rule sends it direct.</source>
        <translation>除非地区或规则指定直连，否则流量均经由隧道。</translation>
    </message>
    <message>
        <source>Traffic goes through the proxy unless a region or a rule sends it direct.</source>
        <translation>除非地区或规则指定直连，否则流量均经由代理。</translation>
    </message>
    <message>
        <source>No regions chosen.</source>
        <translation>未选择地区。</translation>
    </message>
    <message>
        <source>Go direct: %1</source>
        <translation>直连：%1</translation>
    </message>
    <message>
        <source>Go through the tunnel: %1</source>
        <translation>经由隧道：%1</translation>
    </message>
    <message>
        <source>Go through the proxy: %1</source>
        <translation>经由代理：%1</translation>
    </message>
    <message>
        <source>GFWList → Tunnel</source>
        <translation>GFWList → 隧道</translation>
    </message>
    <message>
        <source>GFWList → Proxy</source>
        <translation>GFWList → 代理</translation>
    </message>
    <message>
        <source>Sites on the GFWList always go through the tunnel.</source>
        <translation>GFWList 中的网站始终经由隧道。</translation>
    </message>
    <message>
        <source>Sites on the GFWList always go through the proxy.</source>
        <translation>GFWList 中的网站始终经由代理。</translation>
    </message>
    <message>
        <source>Your own domain and address lists.</source>
        <translation>您自定义的域名和地址列表。</translation>
    </message>
    <message>
        <source>Your own domain and address lists. Rules held: %1.</source>
        <translation>您自定义的域名和地址列表。现有规则 %1 条。</translation>
    </message>
</context>
<context>
    <name>TovraAppShell</name>
    <message>
        <source>Could not sign in</source>
        <translation>无法登录</translation>
    </message>
    <message>
        <source>Could not sign out</source>
        <translation>无法退出登录</translation>
    </message>
    <message>
        <source>Could not load account</source>
        <translation>无法加载账户</translation>
    </message>
    <message>
        <source>Could not open renewal page</source>
        <translation>无法打开续费页面</translation>
    </message>
    <message>
        <source>Refreshing locations...</source>
        <translation>正在刷新节点...</translation>
    </message>
    <message>
        <source>A locations update is already in progress</source>
        <translation>节点更新已在进行中</translation>
    </message>
    <message>
        <source>Could not update favorite</source>
        <translation>无法更新收藏</translation>
    </message>
    <message>
        <source>Could not refresh locations</source>
        <translation>无法刷新节点</translation>
    </message>
    <message>
        <source>Could not refresh location groups</source>
        <translation>无法刷新节点分组</translation>
    </message>
    <message>
        <source>Locations updated</source>
        <translation>节点已更新</translation>
    </message>
    <message>
        <source>Could not connect to this location</source>
        <translation>无法连接到此节点</translation>
    </message>
    <message>
        <source>Could not connect</source>
        <translation>无法连接</translation>
    </message>
    <message>
        <source>Could not disconnect</source>
        <translation>无法断开连接</translation>
    </message>
    <message>
        <source>Could not update language</source>
        <translation>无法更改语言</translation>
    </message>
    <message>
        <source>Restarting Tovra to apply the interface language.</source>
        <translation>正在重新启动 Tovra 以应用界面语言。</translation>
    </message>
    <message>
        <source>Could not restart Tovra. Please restart the app manually.</source>
        <translation>无法重新启动 Tovra。请手动重新启动应用。</translation>
    </message>
    <message>
        <source>Could not switch mode</source>
        <translation>无法切换模式</translation>
    </message>
    <message>
        <source>Could not update local network</source>
        <translation>无法更新局域网设置</translation>
    </message>
    <message>
        <source>Could not update system proxy</source>
        <translation>无法更新系统代理</translation>
    </message>
    <message>
        <source>Please wait for the current operation to finish</source>
        <translation>请等待当前操作完成</translation>
    </message>
    <message>
        <source>Pick a VPN mode to turn on Kill Switch</source>
        <translation>请选择 VPN 模式以开启断网保护</translation>
    </message>
    <message>
        <source>Could not update kill switch</source>
        <translation>无法更新断网保护</translation>
    </message>
    <message>
        <source>Custom split rules updated, but rules could not be refreshed</source>
        <translation>自定义分流规则已更新，但无法刷新规则</translation>
    </message>
    <message>
        <source>Could not load split rules</source>
        <translation>无法加载分流规则</translation>
    </message>
    <message>
        <source>Could not import split rules</source>
        <translation>无法导入分流规则</translation>
    </message>
    <message numerus="yes">
        <source>Custom split rules updated (%n rule(s))</source>
        <translation>
            <numerusform>自定义分流规则已更新（%n 条规则）</numerusform>
        </translation>
    </message>
    <message>
        <source>Could not load config paths</source>
        <translation>无法加载配置路径</translation>
    </message>
    <message>
        <source>Could not update API URL</source>
        <translation>无法更新 API 地址</translation>
    </message>
    <message>
        <source>API URL reset to default</source>
        <translation>API 地址已恢复为默认值</translation>
    </message>
    <message>
        <source>API URL validated and saved</source>
        <translation>API 地址已验证并保存</translation>
    </message>
    <message>
        <source>API URL saved but not validated</source>
        <translation>API 地址已保存，但未验证</translation>
    </message>
    <message>
        <source>Could not update auto connect</source>
        <translation>无法更新自动连接设置</translation>
    </message>
    <message>
        <source>Could not update proxy listen address</source>
        <translation>无法更新代理监听地址</translation>
    </message>
    <message>
        <source>Proxy listen address saved for reconnect</source>
        <translation>代理监听地址已保存，将在重新连接后生效</translation>
    </message>
    <message>
        <source>Proxy listen address updated</source>
        <translation>代理监听地址已更新</translation>
    </message>
    <message>
        <source>Could not update split DNS</source>
        <translation>无法更新分流 DNS</translation>
    </message>
    <message>
        <source>Split DNS updated</source>
        <translation>分流 DNS 已更新</translation>
    </message>
    <message>
        <source>Repair failed</source>
        <translation>修复失败</translation>
    </message>
    <message>
        <source>Repair completed</source>
        <translation>修复完成</translation>
    </message>
    <message>
        <source>Checking Tovra service compatibility...</source>
        <translation>正在检查 Tovra 服务的兼容性...</translation>
    </message>
    <message>
        <source>Tovra GUI and daemon are incompatible. Update Tovra before continuing.</source>
        <translation>Tovra 界面程序与服务不兼容。请先更新 Tovra 再继续。</translation>
    </message>
    <message>
        <source>Could not load version</source>
        <translation>无法加载版本信息</translation>
    </message>
    <message>
        <source>GUI version is unavailable</source>
        <translation>无法获取界面程序版本</translation>
    </message>
    <message>
        <source>Could not check for updates</source>
        <translation>无法检查更新</translation>
    </message>
    <message>
        <source>Tovra is up to date</source>
        <translation>Tovra 已是最新版本</translation>
    </message>
    <message>
        <source>A required Tovra update is being checked before connecting.</source>
        <translation>连接前正在检查必需的 Tovra 更新。</translation>
    </message>
    <message>
        <source>Finishing the latest update check before starting the download...</source>
        <translation>正在完成最近一次更新检查，随后开始下载...</translation>
    </message>
    <message>
        <source>Update information is unavailable. Check for updates again.</source>
        <translation>无法获取更新信息。请重新检查更新。</translation>
    </message>
    <message>
        <source>Canceling...</source>
        <translation>正在取消...</translation>
    </message>
    <message>
        <source>Could not confirm that the download started. Checking its status...</source>
        <translation>无法确认下载是否已开始。正在检查下载状态...</translation>
    </message>
    <message>
        <source>Could not start the update download</source>
        <translation>无法开始下载更新</translation>
    </message>
    <message>
        <source>Could not confirm cancellation. Retrying...</source>
        <translation>无法确认是否已取消。正在重试...</translation>
    </message>
    <message>
        <source>Could not read download progress. Retrying...</source>
        <translation>无法读取下载进度。正在重试...</translation>
    </message>
    <message>
        <source>The download completed before it could be canceled. The installer was not opened.</source>
        <translation>下载在取消前已完成。安装程序未打开。</translation>
    </message>
    <message>
        <source>The update was downloaded, but the installer could not be opened.</source>
        <translation>更新已下载，但无法打开安装程序。</translation>
    </message>
    <message>
        <source>The download belongs to a different update release. Check for updates again.</source>
        <translation>此下载属于另一个更新版本。请重新检查更新。</translation>
    </message>
    <message>
        <source>Could not load kill switch</source>
        <translation>无法加载断网保护设置</translation>
    </message>
    <message>
        <source>Could not load API URL</source>
        <translation>无法加载 API 地址</translation>
    </message>
    <message>
        <source>Could not load split DNS</source>
        <translation>无法加载分流 DNS 设置</translation>
    </message>
    <message>
        <source>Could not reach the Tovra service</source>
        <translation>无法连接 Tovra 服务</translation>
    </message>
    <message>
        <source>Could not load languages</source>
        <translation>无法加载语言列表</translation>
    </message>
    <message>
        <source>Checking for updates...</source>
        <translation>正在检查更新...</translation>
    </message>
    <message>
        <source>Tovra %1 is available</source>
        <translation>Tovra %1 已发布</translation>
    </message>
    <message>
        <source>A required Tovra update must be installed before connecting.</source>
        <translation>连接前必须安装必需的 Tovra 更新。</translation>
    </message>
    <message>
        <source>The Tovra service is not available</source>
        <translation>Tovra 服务不可用</translation>
    </message>
    <message>
        <source>The Tovra service did not answer</source>
        <translation>Tovra 服务没有响应</translation>
    </message>
    <message>
        <source>A required Tovra update must be installed before connecting</source>
        <translation>连接前必须安装一个必需的 Tovra 更新</translation>
    </message>
    <message>
        <source>Another connection request replaced this one</source>
        <translation>另一个连接请求取代了此请求</translation>
    </message>
</context>
<context>
    <name>TovraRegionPickerDialog</name>
    <message>
        <source>Save</source>
        <extracomment>Button</extracomment>
        <translation>保存</translation>
    </message>
    <message>
        <source>Choose regions</source>
        <translation>选择地区</translation>
    </message>
    <message>
        <source>Search countries</source>
        <translation>搜索国家/地区</translation>
    </message>
    <message>
        <source>Countries</source>
        <translation>国家/地区</translation>
    </message>
    <message>
        <source>Cancel</source>
        <extracomment>Button</extracomment>
        <translation>取消</translation>
    </message>
    <message>
        <source>Traffic to the regions you check goes direct, outside the tunnel. Everything else goes through the tunnel.</source>
        <translation>发往所勾选地区的流量直连，不经过隧道。其他流量均经由隧道。</translation>
    </message>
    <message>
        <source>Traffic to the regions you check goes direct, not through the proxy. Everything else goes through the proxy.</source>
        <translation>发往所勾选地区的流量直连，不经过代理。其他流量均经由代理。</translation>
    </message>
    <message>
        <source>Traffic to the regions you check goes through the tunnel. Everything else goes direct.</source>
        <translation>发往所勾选地区的流量经由隧道，其他流量均直连。</translation>
    </message>
    <message>
        <source>Traffic to the regions you check goes through the proxy. Everything else goes direct.</source>
        <translation>发往所勾选地区的流量经由代理，其他流量均直连。</translation>
    </message>
    <message>
        <source>Checked: %1</source>
        <translation>已勾选：%1</translation>
    </message>
    <message>
        <source>No country matches “%1”.</source>
        <translation>没有与“%1”匹配的国家/地区。</translation>
    </message>
</context>
<context>
    <name>TovraSplitRulesEditorDialog</name>
    <message>
        <source>Rule list</source>
        <translation>规则列表</translation>
    </message>
    <message>
        <source>Import</source>
        <extracomment>Button that replaces the chosen rule list with the lines typed</extracomment>
        <translation>导入</translation>
    </message>
    <message>
        <source>Custom split rules</source>
        <translation>自定义分流规则</translation>
    </message>
    <message>
        <source>One domain, IP address or CIDR range per line, such as example.org, 203.0.113.7 or 10.0.0.0/8. Lines starting with # are comments.</source>
        <translation>每行一个域名、IP 地址或 CIDR 网段，例如 example.org、203.0.113.7 或 10.0.0.0/8。以 # 开头的行为注释。</translation>
    </message>
    <message>
        <source>Rules</source>
        <translation>规则</translation>
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
        <translation>关闭</translation>
    </message>
    <message>
        <source>Replace the chosen list with these rules</source>
        <translation>用这些规则替换所选列表</translation>
    </message>
    <message>
        <source>Direct</source>
        <extracomment>Name of the rule list whose sites and addresses go straight to the internet</extracomment>
        <translation>直连</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>代理</translation>
    </message>
    <message>
        <source>Block</source>
        <translation>拦截</translation>
    </message>
    <message>
        <source>Sites and addresses that always go direct</source>
        <translation>始终直连的网站和地址</translation>
    </message>
    <message>
        <source>Sites and addresses that always go through Tovra</source>
        <translation>始终经由 Tovra 的网站和地址</translation>
    </message>
    <message>
        <source>Sites and addresses that are blocked</source>
        <translation>被拦截的网站和地址</translation>
    </message>
    <message>
        <source>Loading rules…</source>
        <translation>正在加载规则…</translation>
    </message>
    <message>
        <source>The Tovra service reports no rule lists.</source>
        <translation>Tovra 服务未提供任何规则列表。</translation>
    </message>
    <message>
        <source>Rules are not loaded yet.</source>
        <translation>规则尚未加载。</translation>
    </message>
    <message>
        <source>Rules: %1 · Lines: %2</source>
        <translation>规则：%1 · 行数：%2</translation>
    </message>
    <message>
        <source>not imported</source>
        <translation>未导入</translation>
    </message>
    <message>
        <source>importing…</source>
        <translation>正在导入…</translation>
    </message>
    <message>
        <source>Nothing was imported. Fix these lines first:</source>
        <translation>未导入任何内容。请先修正以下各行：</translation>
    </message>
    <message>
        <source>Line %1: “%2” is not a domain, IP address or CIDR range.</source>
        <translation>第 %1 行：“%2”不是域名、IP 地址或 CIDR 网段。</translation>
    </message>
    <message>
        <source>… Bad lines in all: %1.</source>
        <translation>… 错误行共 %1 行。</translation>
    </message>
</context>
<context>
    <name>TrayMenuText</name>
    <message>
        <source>Tovra: connecting...</source>
        <translation>Tovra: 正在连接...</translation>
    </message>
    <message>
        <source>Tovra: connecting %1...</source>
        <translation>Tovra: 正在连接 %1...</translation>
    </message>
    <message>
        <source>[ %1 ]</source>
        <translation>[ %1 ]</translation>
    </message>
    <message>
        <source>Error: %1</source>
        <translation>错误：%1</translation>
    </message>
    <message>
        <source>Tovra: updating TovraVPN split...</source>
        <extracomment>Changing the default route of the TovraVPN Split mode; name the mode as the Mode page does</extracomment>
        <translation>Tovra: 正在更新 TovraVPN 分流...</translation>
    </message>
    <message>
        <source>Tovra: updating TovraVPN regions...</source>
        <translation>Tovra: 正在更新 TovraVPN 地区...</translation>
    </message>
    <message>
        <source>Tovra: updating TovraVPN GFWList...</source>
        <translation>Tovra: 正在更新 TovraVPN GFWList...</translation>
    </message>
    <message>
        <source>Tovra: updating TovraVPN custom rules...</source>
        <translation>Tovra: 正在更新 TovraVPN 自定义规则...</translation>
    </message>
    <message>
        <source>Tovra: updating Tovra Proxy Split...</source>
        <translation>Tovra: 正在更新 Tovra Proxy 分流...</translation>
    </message>
    <message>
        <source>Tovra: updating Tovra Proxy regions...</source>
        <translation>Tovra: 正在更新 Tovra Proxy 地区...</translation>
    </message>
    <message>
        <source>Tovra: updating Tovra Proxy GFWList...</source>
        <translation>Tovra: 正在更新 Tovra Proxy GFWList...</translation>
    </message>
    <message>
        <source>operation failed</source>
        <extracomment>Follows &quot;Error: &quot; when a request to the service failed without a reason. Word it as a user would understand it: &quot;could not complete the action&quot;</extracomment>
        <translation>无法完成操作</translation>
    </message>
    <message>
        <source>log directory</source>
        <translation>日志目录</translation>
    </message>
    <message>
        <source>missing %1</source>
        <translation>缺少%1</translation>
    </message>
    <message>
        <source>%1 does not exist: %2</source>
        <translation>%1不存在：%2</translation>
    </message>
    <message>
        <source>could not open %1: %2</source>
        <translation>无法打开%1：%2</translation>
    </message>
    <message>
        <source>Current: loading...</source>
        <translation>当前：正在加载...</translation>
    </message>
    <message>
        <source>Refresh Nodes</source>
        <translation>刷新节点</translation>
    </message>
    <message>
        <source>Loading nodes...</source>
        <translation>正在加载节点...</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>自动</translation>
    </message>
    <message>
        <source>WireGuard</source>
        <translation>WireGuard</translation>
    </message>
    <message>
        <source>Mode: TovraVPN</source>
        <translation>模式：TovraVPN</translation>
    </message>
    <message>
        <source>Global</source>
        <translation>全局</translation>
    </message>
    <message>
        <source>Split</source>
        <translation>分流</translation>
    </message>
    <message>
        <source>Split Options</source>
        <translation>分流选项</translation>
    </message>
    <message>
        <source>Default: Tunnel</source>
        <translation>默认：隧道</translation>
    </message>
    <message>
        <source>Default: Direct</source>
        <translation>默认：直连</translation>
    </message>
    <message>
        <source>Regions</source>
        <translation>地区</translation>
    </message>
    <message>
        <source>GFWList -&gt; Tunnel</source>
        <translation>GFWList -&gt; 隧道</translation>
    </message>
    <message>
        <source>Custom Split Rules</source>
        <translation>自定义分流规则</translation>
    </message>
    <message>
        <source>Mode: Tovra Proxy</source>
        <translation>模式：Tovra Proxy</translation>
    </message>
    <message>
        <source>Default: Proxy</source>
        <translation>默认：代理</translation>
    </message>
    <message>
        <source>GFWList -&gt; Proxy</source>
        <translation>GFWList -&gt; 代理</translation>
    </message>
    <message>
        <source>Tovra: starting...</source>
        <translation>Tovra: 正在启动...</translation>
    </message>
    <message>
        <source>Daemon: checking...</source>
        <translation>服务：正在检查...</translation>
    </message>
    <message>
        <source>Open Tovra...</source>
        <translation>打开 Tovra...</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>连接</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>断开连接</translation>
    </message>
    <message>
        <source>Node / Location</source>
        <translation>节点</translation>
    </message>
    <message>
        <source>System Proxy</source>
        <translation>系统代理</translation>
    </message>
    <message>
        <source>Off</source>
        <extracomment>System proxy menu option and value: the desktop proxy settings are left alone</extracomment>
        <translation>关闭</translation>
    </message>
    <message>
        <source>On</source>
        <extracomment>System proxy menu option and value: the desktop proxy settings point at Tovra</extracomment>
        <translation>开启</translation>
    </message>
    <message>
        <source>Lock</source>
        <extracomment>System proxy menu option and value, a state rather than an action: the desktop proxy settings point at Tovra and other programs cannot change them</extracomment>
        <translation>锁定</translation>
    </message>
    <message>
        <source>Local Network</source>
        <translation>局域网</translation>
    </message>
    <message>
        <source>LAN Access</source>
        <translation>局域网访问</translation>
    </message>
    <message>
        <source>Direct</source>
        <extracomment>Local network menu option and value: devices nearby are reached outside the tunnel. Also the route in &quot;Regions use %1: %2&quot;</extracomment>
        <translation>直连</translation>
    </message>
    <message>
        <source>Protected</source>
        <extracomment>Local network menu option and value: local traffic goes through the tunnel like the rest</extracomment>
        <translation>受保护</translation>
    </message>
    <message>
        <source>Kill Switch</source>
        <translation>断网保护</translation>
    </message>
    <message>
        <source>Refresh Status</source>
        <translation>刷新状态</translation>
    </message>
    <message>
        <source>Open Logs</source>
        <translation>打开日志</translation>
    </message>
    <message>
        <source>Account: checking...</source>
        <translation>账户：正在检查...</translation>
    </message>
    <message>
        <source>Logout</source>
        <translation>退出登录</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>退出</translation>
    </message>
    <message>
        <source>Tovra: daemon unavailable</source>
        <translation>Tovra: 服务不可用</translation>
    </message>
    <message>
        <source>daemon unavailable</source>
        <translation>服务不可用</translation>
    </message>
    <message>
        <source>Account: unavailable</source>
        <translation>账户：不可用</translation>
    </message>
    <message>
        <source>Tovra - daemon unavailable</source>
        <translation>Tovra - 服务不可用</translation>
    </message>
    <message>
        <source>Tovra: switching to auto...</source>
        <translation>Tovra: 正在切换到自动模式...</translation>
    </message>
    <message>
        <source>Tovra: switching to WireGuard...</source>
        <translation>Tovra: 正在切换到 WireGuard...</translation>
    </message>
    <message>
        <source>Tovra: switching to TovraVPN...</source>
        <translation>Tovra: 正在切换到 TovraVPN...</translation>
    </message>
    <message>
        <source>Tovra: switching TovraVPN split...</source>
        <extracomment>Switching to the TovraVPN Split mode; name the mode as the Mode page does</extracomment>
        <translation>Tovra: 正在切换到 TovraVPN 分流...</translation>
    </message>
    <message>
        <source>Tovra: switching to Tovra Proxy...</source>
        <translation>Tovra: 正在切换到 Tovra Proxy...</translation>
    </message>
    <message>
        <source>Tovra: switching to Tovra Proxy Split...</source>
        <translation>Tovra: 正在切换到 Tovra Proxy 分流...</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>System Proxy: %1</source>
        <translation>系统代理：%1</translation>
    </message>
    <message>
        <source>Local Network: %1</source>
        <translation>局域网：%1</translation>
    </message>
    <message>
        <source>Tunnel</source>
        <translation>隧道</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>代理</translation>
    </message>
    <message>
        <source>Regions use %1: %2</source>
        <translation>地区（%1）：%2</translation>
    </message>
    <message>
        <source>Could not refresh nodes</source>
        <translation>无法刷新节点</translation>
    </message>
    <message>
        <source>Could not load nodes</source>
        <translation>无法加载节点</translation>
    </message>
    <message>
        <source>Could not refresh node groups</source>
        <translation>无法刷新节点分组</translation>
    </message>
    <message>
        <source>Could not load node groups</source>
        <translation>无法加载节点分组</translation>
    </message>
    <message>
        <source>Refreshing nodes...</source>
        <translation>正在刷新节点...</translation>
    </message>
    <message>
        <source>Nodes not loaded</source>
        <translation>节点未加载</translation>
    </message>
    <message>
        <source>No cached nodes</source>
        <translation>没有缓存的节点</translation>
    </message>
    <message>
        <source>No nodes</source>
        <translation>没有节点</translation>
    </message>
    <message>
        <source>Current: %1</source>
        <translation>当前：%1</translation>
    </message>
    <message>
        <source>none</source>
        <translation>无</translation>
    </message>
    <message>
        <source>Refresh Nodes (%1s)</source>
        <translation>刷新节点（%1 秒）</translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <translation>%1 · %2</translation>
    </message>
    <message>
        <source>Location: %1</source>
        <translation>节点：%1</translation>
    </message>
    <message>
        <source>Location: %1 · %2</source>
        <translation>节点：%1 · %2</translation>
    </message>
    <message>
        <source>Current: %1 (stale)</source>
        <translation>当前：%1（可能已过时）</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>分组</translation>
    </message>
    <message>
        <source>less than 1m</source>
        <translation>不到 1 分钟</translation>
    </message>
    <message>
        <source>%1m</source>
        <translation>%1 分钟</translation>
    </message>
    <message>
        <source>%1h</source>
        <translation>%1 小时</translation>
    </message>
    <message>
        <source>%1h %2m</source>
        <translation>%1 小时 %2 分钟</translation>
    </message>
    <message>
        <source>%1d</source>
        <translation>%1 天</translation>
    </message>
    <message>
        <source>%1d %2h</source>
        <translation>%1 天 %2 小时</translation>
    </message>
    <message>
        <source>Tovra: disconnecting...</source>
        <translation>Tovra: 正在断开连接...</translation>
    </message>
    <message>
        <source>Tovra: logging out...</source>
        <translation>Tovra: 正在退出登录...</translation>
    </message>
    <message>
        <source>Tovra: updating system proxy...</source>
        <translation>Tovra: 正在更新系统代理...</translation>
    </message>
    <message>
        <source>Tovra: updating local network routing...</source>
        <translation>Tovra: 正在更新局域网路由...</translation>
    </message>
    <message>
        <source>Tovra: enabling kill switch...</source>
        <translation>Tovra: 正在开启断网保护...</translation>
    </message>
    <message>
        <source>Tovra: disabling kill switch...</source>
        <translation>Tovra: 正在关闭断网保护...</translation>
    </message>
    <message>
        <source>Tovra: connect failed</source>
        <translation>Tovra: 连接失败</translation>
    </message>
    <message>
        <source>Tovra: disconnect failed</source>
        <translation>Tovra: 断开连接失败</translation>
    </message>
    <message>
        <source>Logged out</source>
        <translation>已退出登录</translation>
    </message>
    <message>
        <source>account operation failed</source>
        <extracomment>Follows &quot;Error: &quot; when signing out failed and the service gave no reason. Word it as a user would understand it: &quot;could not complete the account action&quot;</extracomment>
        <translation>无法完成账户操作</translation>
    </message>
    <message>
        <source>mode operation failed</source>
        <extracomment>Follows &quot;Error: &quot; when changing the mode failed and the service gave no reason. Word it as a user would understand it: &quot;could not change the mode&quot;</extracomment>
        <translation>无法更改模式</translation>
    </message>
    <message>
        <source>Mode updated</source>
        <translation>模式已更新</translation>
    </message>
    <message>
        <source>System proxy set to %1</source>
        <translation>系统代理已设为 %1</translation>
    </message>
    <message>
        <source>Updated</source>
        <translation>已更新</translation>
    </message>
    <message>
        <source>Kill switch enabled</source>
        <translation>断网保护已开启</translation>
    </message>
    <message>
        <source>Kill switch disabled</source>
        <translation>断网保护已关闭</translation>
    </message>
    <message>
        <source>kill-switch operation failed</source>
        <extracomment>Follows &quot;Error: &quot; when turning the kill switch on or off failed and the service gave no reason. Word it as a user would understand it: &quot;could not change the kill switch&quot;</extracomment>
        <translation>无法更改断网保护</translation>
    </message>
    <message>
        <source>connected</source>
        <extracomment>Tunnel state after &quot;Tovra: &quot;: the VPN is connected (not connecting)</extracomment>
        <translation>已连接</translation>
    </message>
    <message>
        <source>disconnected</source>
        <translation>未连接</translation>
    </message>
    <message>
        <source>connecting</source>
        <translation>正在连接</translation>
    </message>
    <message>
        <source>disconnecting</source>
        <translation>正在断开连接</translation>
    </message>
    <message>
        <source>ready</source>
        <translation>就绪</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>未知</translation>
    </message>
    <message>
        <source>Tovra: %1</source>
        <translation>Tovra: %1</translation>
    </message>
    <message>
        <source>running</source>
        <translation>运行中</translation>
    </message>
    <message>
        <source>Daemon: %1</source>
        <translation>服务：%1</translation>
    </message>
    <message>
        <source>Daemon: %1 (%2)</source>
        <translation>服务：%1（%2）</translation>
    </message>
    <message>
        <source>Account: cached</source>
        <translation>账户：已缓存</translation>
    </message>
    <message>
        <source>Account: Login Required</source>
        <translation>账户：需要登录</translation>
    </message>
    <message>
        <source>Account: %1</source>
        <translation>账户：%1</translation>
    </message>
    <message>
        <source>Account: logged in</source>
        <translation>账户：已登录</translation>
    </message>
    <message>
        <source>Kill Switch: %1</source>
        <translation>断网保护：%1</translation>
    </message>
    <message>
        <source>off</source>
        <comment>system proxy value</comment>
        <translation>关闭</translation>
    </message>
    <message>
        <source>on</source>
        <comment>system proxy value</comment>
        <translation>开启</translation>
    </message>
    <message>
        <source>lock</source>
        <comment>system proxy value</comment>
        <translation>锁定</translation>
    </message>
    <message>
        <source>%1 · Locked: needs the %2 plan</source>
        <extracomment>A node menu entry the plan does not include: the node, then the plan it needs</extracomment>
        <translation>%1 · 已锁定：需要 %2 套餐</translation>
    </message>
</context>
<context>
    <name>UpdateDialog</name>
    <message>
        <source>Could not read the update download status.</source>
        <translation>无法读取更新的下载状态。</translation>
    </message>
    <message>
        <source>Download canceled.</source>
        <translation>下载已取消。</translation>
    </message>
    <message>
        <source>Could not download the update.</source>
        <translation>无法下载更新。</translation>
    </message>
    <message>
        <source>Download complete. Opening the installer...</source>
        <translation>下载完成。正在打开安装程序...</translation>
    </message>
    <message>
        <source>The download link is unavailable.</source>
        <translation>下载链接不可用。</translation>
    </message>
    <message>
        <source>Could not open the update download link.</source>
        <translation>无法打开更新的下载链接。</translation>
    </message>
    <message>
        <source>The download link opened in your browser. Tovra will not run the installer automatically.</source>
        <translation>下载链接已在浏览器中打开。Tovra 不会自动运行安装程序。</translation>
    </message>
    <message>
        <source>Tovra Update</source>
        <translation>Tovra 更新</translation>
    </message>
    <message>
        <source>Tovra must be updated before you can connect. Download the installer or exit Tovra.</source>
        <translation>必须先更新 Tovra 才能连接。请下载安装程序，或退出 Tovra。</translation>
    </message>
    <message>
        <source>What&apos;s New</source>
        <translation>新功能</translation>
    </message>
    <message>
        <source>Download progress</source>
        <translation>下载进度</translation>
    </message>
    <message>
        <source>Hide this update</source>
        <extracomment>Button (shown as a link) that stops offering this update</extracomment>
        <translation>跳过此版本</translation>
    </message>
    <message>
        <source>Not Now</source>
        <extracomment>Button that closes the dialog and keeps the update for later</extracomment>
        <translation>以后再说</translation>
    </message>
    <message>
        <source>Exit Tovra</source>
        <extracomment>Button that quits Tovra when the update is required</extracomment>
        <translation>退出 Tovra</translation>
    </message>
    <message>
        <source>Exit Tovra without updating</source>
        <translation>不更新并退出 Tovra</translation>
    </message>
    <message>
        <source>Open Download Link</source>
        <extracomment>Button that opens the installer download page in the browser</extracomment>
        <translation>打开下载链接</translation>
    </message>
    <message>
        <source>Open the Tovra update download link</source>
        <translation>打开 Tovra 更新的下载链接</translation>
    </message>
    <message>
        <source>A required update is available</source>
        <translation>有必须安装的更新</translation>
    </message>
    <message>
        <source>A new Tovra update is available</source>
        <translation>Tovra 有新的更新可用</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>未知</translation>
    </message>
    <message>
        <source>Latest</source>
        <translation>最新版本</translation>
    </message>
    <message>
        <source>Current version: %1
Available version: %2</source>
        <translation>当前版本：%1
可用版本：%2</translation>
    </message>
    <message>
        <source>Release notes are unavailable.</source>
        <translation>暂无更新说明。</translation>
    </message>
    <message>
        <source>Downloading %1 of %2</source>
        <translation>正在下载：%1 / %2</translation>
    </message>
    <message>
        <source>Downloading update...</source>
        <translation>正在下载更新...</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 MB</translation>
    </message>
    <message>
        <source>Preparing the download...</source>
        <translation>正在准备下载...</translation>
    </message>
    <message>
        <source>Verifying the download...</source>
        <translation>正在校验下载的文件...</translation>
    </message>
    <message>
        <source>Canceling the download...</source>
        <translation>正在取消下载...</translation>
    </message>
    <message>
        <source>Download in Background</source>
        <extracomment>Button that hides the dialog while the installer downloads</extracomment>
        <translation>在后台下载</translation>
    </message>
    <message>
        <source>Download the latest installer without interrupting your current session.</source>
        <translation>在后台下载最新的安装程序，不会中断当前会话。</translation>
    </message>
    <message>
        <source>Hide this window while the update downloads</source>
        <translation>下载更新期间隐藏此窗口</translation>
    </message>
    <message>
        <source>Canceling...</source>
        <extracomment>Button while the download is being cancelled</extracomment>
        <translation>正在取消...</translation>
    </message>
    <message>
        <source>Cancel the update download</source>
        <translation>取消下载更新</translation>
    </message>
    <message>
        <source>Cancel Download</source>
        <extracomment>Button</extracomment>
        <translation>取消下载</translation>
    </message>
    <message>
        <source>Opening Installer...</source>
        <extracomment>Button while the downloaded installer opens</extracomment>
        <translation>正在打开安装程序...</translation>
    </message>
    <message>
        <source>Retry Download</source>
        <extracomment>Button</extracomment>
        <translation>重新下载</translation>
    </message>
    <message>
        <source>Retry the update download</source>
        <translation>重新下载更新</translation>
    </message>
    <message>
        <source>Download Update</source>
        <extracomment>Button that downloads and opens the installer</extracomment>
        <translation>下载更新</translation>
    </message>
    <message>
        <source>Download and install the Tovra update</source>
        <translation>下载并安装 Tovra 更新</translation>
    </message>
    <message>
        <source>Retrying the download...</source>
        <translation>正在重试下载...</translation>
    </message>
</context>
<context>
    <name>UpdatesSection</name>
    <message>
        <source>Updates</source>
        <translation>更新</translation>
    </message>
    <message>
        <source>Check for updates</source>
        <extracomment>Button</extracomment>
        <translation>检查更新</translation>
    </message>
    <message>
        <source>Tovra for Linux</source>
        <translation>Tovra Linux 版</translation>
    </message>
    <message>
        <source>The version of this app.</source>
        <translation>此应用的版本。</translation>
    </message>
    <message>
        <source>Ask the Tovra service for a newer version.</source>
        <translation>向 Tovra 服务查询是否有新版本。</translation>
    </message>
    <message>
        <source>%1 (build %2)</source>
        <translation>%1（构建版本 %2）</translation>
    </message>
</context>
<context>
    <name>VpnKillSwitchRow</name>
    <message>
        <source>Kill Switch</source>
        <translation>断网保护</translation>
    </message>
</context>
<context>
    <name>VpnPage</name>
    <message>
        <source>Connect</source>
        <extracomment>Button that connects the VPN</extracomment>
        <translation>连接</translation>
    </message>
    <message>
        <source>Sign In</source>
        <extracomment>Button that opens the account page to sign in</extracomment>
        <translation>登录</translation>
    </message>
    <message>
        <source>Cancel</source>
        <extracomment>Button that stops a connection attempt</extracomment>
        <translation>取消</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <extracomment>Button that disconnects the VPN</extracomment>
        <translation>断开连接</translation>
    </message>
    <message>
        <source>Disconnecting…</source>
        <extracomment>Button while the VPN disconnects</extracomment>
        <translation>正在断开连接…</translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <translation>%1 · %2</translation>
    </message>
    <message>
        <source>Service unavailable</source>
        <translation>服务不可用</translation>
    </message>
    <message>
        <source>Waiting for the Tovra service to answer.</source>
        <translation>正在等待 Tovra 服务响应。</translation>
    </message>
    <message>
        <source>Signed out</source>
        <translation>未登录</translation>
    </message>
    <message>
        <source>Sign in to your Tovra account to connect.</source>
        <translation>登录 Tovra 账户后即可连接。</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>节点</translation>
    </message>
    <message>
        <source>Last location</source>
        <translation>上次的节点</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>已连接</translation>
    </message>
    <message>
        <source>Your traffic goes through the Tovra tunnel.</source>
        <translation>您的流量正经由 Tovra 隧道传输。</translation>
    </message>
    <message>
        <source>Connecting…</source>
        <translation>正在连接…</translation>
    </message>
    <message>
        <source>Setting up the tunnel.</source>
        <translation>正在建立隧道。</translation>
    </message>
    <message>
        <source>Connecting to %1</source>
        <translation>正在连接到 %1</translation>
    </message>
    <message>
        <source>Closing the tunnel.</source>
        <translation>正在关闭隧道。</translation>
    </message>
    <message>
        <source>Disconnected</source>
        <translation>未连接</translation>
    </message>
    <message>
        <source>Kill Switch blocks traffic until you connect.</source>
        <translation>在您连接之前，断网保护会阻止流量。</translation>
    </message>
    <message>
        <source>Your traffic is not protected.</source>
        <translation>您的流量未受保护。</translation>
    </message>
    <message>
        <source>Connected to %1</source>
        <translation>已连接到 %1</translation>
    </message>
    <message>
        <source>Connection failed: %1</source>
        <translation>连接失败：%1</translation>
    </message>
</context>
<context>
    <name>VpnRecentLocations</name>
    <message>
        <source>Clear</source>
        <extracomment>Button that empties the list of recent locations</extracomment>
        <translation>清除</translation>
    </message>
    <message>
        <source>Locations you connect to appear here.</source>
        <translation>您连接过的节点会显示在这里。</translation>
    </message>
    <message>
        <source>Recent locations</source>
        <translation>最近使用的节点</translation>
    </message>
    <message>
        <source>Clear recent locations</source>
        <translation>清除最近使用的节点</translation>
    </message>
    <message>
        <source>Connect to %1</source>
        <translation>连接到 %1</translation>
    </message>
</context>
<context>
    <name>VpnStatusCard</name>
    <message>
        <source>Connected for %1</source>
        <translation>已连接 %1</translation>
    </message>
    <message>
        <source>Mode: %1</source>
        <translation>模式：%1</translation>
    </message>
</context>
<context>
    <name>WindowController</name>
    <message>
        <source>Could not open link</source>
        <translation>无法打开链接</translation>
    </message>
    <message>
        <source>Log directory is unavailable</source>
        <translation>无法获取日志目录</translation>
    </message>
    <message>
        <source>Log directory does not exist: %1</source>
        <translation>日志目录不存在：%1</translation>
    </message>
    <message>
        <source>Could not open log directory: %1</source>
        <translation>无法打开日志目录：%1</translation>
    </message>
    <message>
        <source>Account operation failed</source>
        <extracomment>Shown when signing in or out failed without a reason. Word it as a user would understand it: &quot;Could not complete the account action&quot;</extracomment>
        <translation>无法完成账户操作</translation>
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
        <translation>显示 VPN 页面</translation>
    </message>
    <message>
        <source>Ctrl+2</source>
        <translation>Ctrl+2</translation>
    </message>
    <message>
        <source>Show the Locations page</source>
        <translation>显示“节点”页面</translation>
    </message>
    <message>
        <source>Ctrl+3</source>
        <translation>Ctrl+3</translation>
    </message>
    <message>
        <source>Show the Mode page</source>
        <translation>显示“模式”页面</translation>
    </message>
    <message>
        <source>Ctrl+4</source>
        <translation>Ctrl+4</translation>
    </message>
    <message>
        <source>Show the Settings page</source>
        <translation>显示“设置”页面</translation>
    </message>
    <message>
        <source>Ctrl+5</source>
        <translation>Ctrl+5</translation>
    </message>
    <message>
        <source>Show the Account page</source>
        <translation>显示“账户”页面</translation>
    </message>
    <message>
        <source>Search: the quick connect field on the VPN page, the list on the Locations page</source>
        <translation>搜索：VPN 页面的快速连接框，“节点”页面的列表</translation>
    </message>
    <message>
        <source>Ctrl+R</source>
        <extracomment>Keyboard shortcut, in Qt&apos;s key names: keep it unless the key is awkward to reach</extracomment>
        <translation>Ctrl+R</translation>
    </message>
    <message>
        <source>Refresh locations</source>
        <translation>刷新节点</translation>
    </message>
    <message>
        <source>Close the window; Tovra stays in the tray</source>
        <translation>关闭窗口；Tovra 仍留在托盘中</translation>
    </message>
    <message>
        <source>Ctrl+Q</source>
        <translation>Ctrl+Q</translation>
    </message>
    <message>
        <source>Quit Tovra</source>
        <translation>退出 Tovra</translation>
    </message>
    <message>
        <source>Close a list, menu or dialog</source>
        <translation>关闭列表、菜单或对话框</translation>
    </message>
    <message>
        <source>Show these keyboard shortcuts</source>
        <translation>显示这些键盘快捷键</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <extracomment>A control&apos;s tool tip: what it does, then its keyboard shortcut</extracomment>
        <translation>%1（%2）</translation>
    </message>
</context>
</TS>
